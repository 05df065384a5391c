#include "platform/guasto.h"
#include "settings/scelta_carattere.h"
#include "settings/scelta_colore.h"

#include <gtest/gtest.h>
#include <set>

namespace lumigrafo::prova {
namespace {

TEST(SceltaColore, OgniCampoMostraIlSuoColore) {
    ColoriScelti colori;
    SceltaColore scelta(colori, [] {});
    const Controllo& anteprima = scelta.controlli()("lblAnteprima");
    std::set<std::pair<std::string_view, std::int32_t>> diversi;
    for (const auto& campo : scelta.controlli().tutti()) {
        const Descrizione& d = campo->disegno();
        if (!d.nome.starts_with("picColore"))
            continue;
        scelta.clic(d.nome, d.indice);
        EXPECT_EQ(d.nome == "picColore" ? *anteprima.BackColor() : anteprima.ForeColor(),
                  *campo->BackColor());
        EXPECT_TRUE(diversi.emplace(d.nome, campo->BackColor()->v).second) << d.nomeAccessibile;
        EXPECT_FALSE(d.nomeAccessibile.empty());
    }
    EXPECT_EQ(diversi.size(), 41U);
}

TEST(SceltaColore, SoloLOkCambia) {
    ColoriScelti colori{0x123456, 0xFFFFFF};
    int chiusure = 0;
    {
        SceltaColore scelta(colori, [&] { ++chiusure; });
        EXPECT_EQ(scelta.controlli()("lblAnteprima").BackColor(), Colore(0x123456));
        scelta.clic("picColore", 25);
        scelta.clic("picColoreTesto", 28);
    } // closed from the title bar
    EXPECT_EQ(colori.ColoreSfondoScelto, 0x123456);
    SceltaColore scelta(colori, [&] { ++chiusure; });
    scelta.clic("picColoreTesto", 4);
    scelta.clic("cmdOk", kSenzaIndice);
    EXPECT_EQ(colori.ColoreSfondoScelto, 0x123456);
    EXPECT_EQ(colori.ColoreTestoScelto, 65535);
    EXPECT_EQ(chiusure, 1);
}

TEST(SceltaCarattere, CioCheEntraECioCheEsce) {
    const struct {
        const char *nome, *dimensione, *nomeDopo, *dimensioneDopo;
    } casi[] = {
        {"Verdana", "72", "Verdana", "72"},
        {"Franklin Gothic Heavy", "49.5", "Franklin Gothic Heavy", "50"},
        {"Arial Blank", "300", "Arial", "250"},
        {"arial black", "6", "Arial", "24"},
        {"Arial Narrow", "48,5", "Arial Narrow", "48"},
    };
    for (const auto& caso : casi) {
        CarattereScelto scelto{caso.nome, caso.dimensione};
        SceltaCarattere scelta(scelto, [] {});
        EXPECT_EQ(scelta.controlli()("lblValore").Caption(), caso.dimensioneDopo);
        EXPECT_EQ(scelta.controlli()("cmdArt").FontName(), caso.nomeDopo);
        EXPECT_EQ(scelto.DimensioneFontScelta, caso.dimensione) << "before the OK";
        scelta.clic("cmdOk", kSenzaIndice);
        EXPECT_EQ(scelto.NomeFontScelto, caso.nomeDopo);
        EXPECT_EQ(scelto.DimensioneFontScelta, caso.dimensioneDopo);
    }
    CarattereScelto scelto{"Arial", "72"};
    SceltaCarattere scelta(scelto, [] {});
    scelta.controlli()("lstFont").ListIndex(6);
    scelta.cambio("lstFont", kSenzaIndice);
    scelta.controlli()("sldFontSize").Value(100);
    scelta.cambio("sldFontSize", kSenzaIndice);
    EXPECT_EQ(scelta.controlli()("cmdArt").FontSize(), 100);
    scelta.clic("cmdOk", kSenzaIndice);
    EXPECT_EQ(scelto.NomeFontScelto + scelto.DimensioneFontScelta, "Arial Black100");
}

} // namespace
} // namespace lumigrafo::prova
