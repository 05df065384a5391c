#include "platform/guasto.h"
#include "settings/scelta_carattere.h"
#include "settings/scelta_colore.h"

#include <gtest/gtest.h>
#include <set>

namespace lumigrafo::prova {
namespace {

TEST(SceltaColore, OgniCampoHaIlSuoColoreAlSuoPosto) {
    ColoriScelti colori;
    SceltaColore scelta(colori, [] {});
    // Index and colour (red, green, blue), from left to right and by row.
    const struct {
        const char* array;
        std::vector<std::pair<int, int>> campi;
        std::size_t perRiga;
    } casi[] = {
        {"picColoreTesto",
         {{5, 0xFFFFFF},
          {28, 0},
          {29, 0xE0E0E0},
          {27, 0xFFFF80},
          {0, 0x0000FF},
          {77, 0x85FD00},
          {1, 0x008000},
          {3, 0x800000},
          {2, 0x00FF00},
          {4, 0xFFFF00},
          {6, 0x804000}},
         11},
        {"picColore",
         {{0, 0xFFC0C0},  {1, 0xFFE0C0},  {2, 0xFFFFC0},  {3, 0xC0FFC0},  {4, 0xC0FFFF},  {5, 0xC0C0FF},
          {6, 0xFFC0FF},  {17, 0xC9B998}, {16, 0x008000}, {29, 0x404040}, {9, 0xFF8080},  {8, 0xFFC080},
          {7, 0xFFFF80},  {10, 0x80FF80}, {11, 0x80FFFF}, {12, 0x8080FF}, {13, 0xFF80FF}, {15, 0xA92014},
          {14, 0x0000C0}, {28, 0x808080}, {25, 0xFF0000}, {26, 0xC04000}, {21, 0xF8EC16}, {20, 0x00C000},
          {24, 0x00C0C0}, {23, 0x0000FF}, {22, 0xFFFFFF}, {18, 0x85FD00}, {19, 0},        {27, 0x800080}},
         10},
    };
    for (const auto& [array, campi, perRiga] : casi) {
        const Controllo* prima = nullptr;
        for (std::size_t i = 0; i < campi.size(); ++i) {
            const auto [indice, c] = campi[i];
            const Controllo& campo = scelta.controlli()(array, indice);
            EXPECT_EQ(campo.BackColor(), rgb(c >> 16, c >> 8 & 0xFF, c & 0xFF)) << array << indice;
            EXPECT_FALSE(campo.disegno().nomeAccessibile.empty());
            if (prima) {
                EXPECT_TRUE(i % perRiga ? campo.Left() > prima->Left() : campo.Top() > prima->Top())
                    << indice;
            }
            prima = &campo;
        }
    }
}

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
        EXPECT_EQ(scelta.controlli()("lblAnteprima").BackColor(), rgb(255, 0, 0));
        EXPECT_EQ(scelta.controlli()("lblAnteprima").ForeColor(), kNero);
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
        {"Franklin Gothic Heavy", "23.5", "Franklin Gothic Heavy", "24"},
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
    EXPECT_EQ(scelta.controlli()("cmdArt").FontName(), "Arial Black");
    EXPECT_EQ(scelta.controlli()("cmdArt").FontSize(), 100);
    scelta.clic("cmdOk", kSenzaIndice);
    EXPECT_EQ(scelto.NomeFontScelto + scelto.DimensioneFontScelta, "Arial Black100");
}

} // namespace
} // namespace lumigrafo::prova
