#include "links/documento_lumigrafo.h"
#include "platform/guasto.h"
#include "strumenti/schermo/argomenti.h"
#include "strumenti/schermo/arrivo.h"
#include "strumenti/schermo/tabellone.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lumigrafo::schermo {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using Stato = Arrivo::Stato;

DatiLumigrafo dati() {
    DatiLumigrafo d;
    d.Last = 1;
    d.Categoria = {"Cucina", "Caffè", ""};
    d.FontNumeri = 40;
    d.TitoloLumigrafo = "SERVIAMO";
    d.Numeri[0] = {"A 3", "A 4", "A 5", "A 2", "", "A 1", "", "", "A 0"};
    d.Numeri[1][2] = "{\"}\\";
    d.colori = {{{"255", "16777215"}, {"boh", "65535"}, {"0", "0"}}};
    return d;
}

TEST(Tabellone, ShowsTheNumbersFromTheNewest) {
    const Tabellone t = leggiTabellone(documentoLumigrafo(dati()));
    EXPECT_EQ(t.titolo, "SERVIAMO");
    EXPECT_EQ(t.font, 40);
    EXPECT_EQ(t.chiamato, 1u);
    EXPECT_THAT(t.gruppi[0].numeri, ElementsAre("A 5", "A 4", "A 3", "A 2", "A 1", "A 0"));
    EXPECT_EQ(t.gruppi[0].sfondo, rgb(255, 0, 0));
    EXPECT_EQ(t.gruppi[1].sfondo, kNero); // an unreadable one
    EXPECT_EQ(t.gruppi[1].testo, kGiallo);
    EXPECT_FALSE(t.gruppi[2].inUso());
    EXPECT_EQ(comeTesto(t), "SERVIAMO\n  Cucina :  A 5  A 4  A 3  A 2  A 1  A 0\n> Caffè  :  {\"}\\\n\n");
    DatiLumigrafo azzera = dati();
    azzera.Last = -1;
    EXPECT_EQ(leggiTabellone(documentoLumigrafo(azzera)).chiamato, std::nullopt);
}

TEST(Tabellone, TakesWhateverADocumentSaysAndNothingElse) {
    const std::string lungo(100'000, 'x');
    const Tabellone t =
        leggiTabellone(R"({"DatiLumigrafo":{"TitoloLumigrafo":"\u001b[2J)" + lungo +
                       R"(","FontNumeri":1e300,"Last":7,"Categoria1":12,"Categoria2":"\ud800"}})");
    EXPECT_EQ(t.titolo.substr(0, 5), "[2Jxx");
    EXPECT_LT(t.titolo.size(), 200u);
    EXPECT_EQ(t.chiamato, std::nullopt);
    EXPECT_EQ(t.gruppi[0].titolo, "");
    for (const char* testo : {"{}", "[]", "{\"DatiLumigrafo\":1}", "{\"DatiLumigrafo\":{]}", "{\"a\":}"})
        EXPECT_THROW(static_cast<void>(leggiTabellone(testo)), Guasto) << testo;
}

TEST(Arrivo, FindsTheEndOfADocumentHoweverItComes) {
    const std::string documento = " \r\n" + documentoLumigrafo(dati());
    for (const std::size_t passo : {std::size_t{1}, std::size_t{7}, documento.size()}) {
        Arrivo arrivo;
        Stato stato = Stato::InCorso;
        for (std::size_t i = 0; i < documento.size(); i += passo) {
            EXPECT_EQ(stato, Stato::InCorso);
            stato = arrivo.prendi(documento.substr(i, passo));
        }
        EXPECT_EQ(stato, Stato::Intero);
        EXPECT_EQ(arrivo.prendi("{"), Stato::Intero);
        EXPECT_EQ(arrivo.testo(), documento);
    }
    for (const char* altro : {"GET / HTTP/1.1", "[1]", "}", "\"{\"", "\xFF"})
        EXPECT_EQ(Arrivo().prendi(altro), Stato::Rifiutato) << altro;
    for (const char inizio : {'{', ' '}) {
        Arrivo arrivo;
        EXPECT_EQ(arrivo.prendi(inizio + std::string(Arrivo::kMassimo - 1, ' ')), Stato::InCorso);
        EXPECT_EQ(arrivo.prendi(" "), Stato::Rifiutato);
    }
}

TEST(ArgomentiSchermo, SonoCapitiORifiutati) {
    const Argomenti a = leggiArgomenti({"--porta", "65535", "--finestra", "--indirizzo", "10.0.0.1"});
    EXPECT_EQ(a.porta, 65535);
    EXPECT_TRUE(a.finestra);
    EXPECT_EQ(a.indirizzo, "10.0.0.1");
    EXPECT_EQ(leggiArgomenti({}).porta, 8989);
    EXPECT_TRUE(leggiArgomenti({"--porta", "--help"}).aiuto);
    using Parole = std::vector<std::string>;
    for (const Parole& errati : {Parole{"--porta"}, Parole{"--porta", "0"}, Parole{"--porta", "65536"},
                                 Parole{"--porta", "8989x"}, Parole{"--indirizzo", ""}, Parole{"dove"}})
        EXPECT_THROW(static_cast<void>(leggiArgomenti(errati)), ErroreDiUso) << errati.front();
}

} // namespace
} // namespace lumigrafo::schermo
