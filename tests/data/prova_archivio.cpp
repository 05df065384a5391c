#include "data/dao.h"
#include "platform/finti/finti.h"
#include "strumenti/archivio/codice_scontrino.h"
#include "strumenti/archivio/programma.h"
#include "tests/sostegno/cartella_temporanea.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace lumigrafo {
namespace {

class Strumento : public ::testing::Test {
protected:
    int operator()(std::vector<std::string> argomenti) {
        out.str("");
        err.str("");
        return archivio::esegui(argomenti, orologio, out, err);
    }
    /// The rows of a query: fields joined by '|', rows by blanks.
    std::string leggi(const std::string& sql) {
        const auto db = ws.OpenDatabase(cartella + "/" + kFileArchivio);
        const auto rs = db->OpenRecordset(sql);
        std::string testo;
        for (; !rs->Eof(); rs->MoveNext()) {
            testo += testo.empty() ? "" : " ";
            for (std::size_t i = 0; i < rs->Fields().Count(); ++i)
                testo += (i ? "|" : "") + rs->Fields().Item(i).Value().aTestoOVuoto();
        }
        return testo;
    }

    prova::CartellaTemporanea temporanea;
    const std::string cartella = (temporanea.percorso() / "nuova").string();
    OrologioFinto orologio; // 15 March 2026, 20:30
    std::ostringstream out, err;
    Workspace ws;
};

TEST_F(Strumento, CreaEAggiungeUnOrdine) {
    ASSERT_EQ((*this)({"crea", cartella}), 0) << err.str();
    EXPECT_EQ(leggi("Select * from Categorie Order by Codice"), "1|Bar 2|Cucina 3|Griglia 4|Pizzeria");
    ASSERT_EQ((*this)({"mostra", cartella}), 0);
    EXPECT_EQ(out.str(), "Nessun ordine in coda.\nLe casse stanno servendo il numero 0.\n");

    ASSERT_EQ((*this)({"ordine", cartella, "--sigla", "a", "--numero", "12", "--categoria", "2=3",
                       "--categoria", "10=1", "--evidenzia"}),
              0)
        << err.str();
    EXPECT_EQ(out.str(), "5996502000127\n");
    EXPECT_EQ(leggi("Select Sigla, Numero, Categoria1, Categoria2, Categoria10, Pezzi2, Pezzi10, Evidenzia "
                    "from Lumigrafo"),
              "A|12|0|-1|-1|3|1|-1");
    EXPECT_EQ(leggi("Select Sigla, Numero, CATEGORIA, SERVITO from DettaglioLumigrafo"),
              "A|12|2|0 A|12|10|0");
    EXPECT_EQ(leggi("Select Sigla, Numero, DataCompetenza, Descrizione, Quantita, SERVITO from Dettaglio"),
              "A|12|20260315|Cucina|3|0 A|12|20260315|Categoria 10|1|0");
    EXPECT_EQ(leggi("Select Sigla, Numero, DataCompetenza, Servito, Stornato from ScontriniEmessi"),
              "A|12|20260315|0|0");

    orologio.ora = {{2026, 3, 16}, 4, 59, 0}; // still the evening before
    ASSERT_EQ((*this)({"ordine", cartella, "--numero", "7", "--categoria", "1=1"}), 0);
    EXPECT_EQ(out.str(), "5990001000077\n");
    EXPECT_EQ(leggi("Select DataCompetenza from ScontriniEmessi Where Numero = 7"), "20260315");
    ASSERT_EQ((*this)({"mostra", cartella}), 0);
    EXPECT_EQ(out.str(), "Ordine  Bar  Cucina  Griglia  Pizzeria  Categoria 10  Evidenzia\n"
                         "7         1\n"
                         "A  12             3                                1         sì\n"
                         "2 ordini in coda.\n"
                         "Le casse stanno servendo il numero 7.\n");
}

TEST_F(Strumento, UnOrdineDoppioNonLasciaTracce) {
    ASSERT_EQ((*this)({"crea", cartella}), 0);
    ASSERT_EQ((*this)({"ordine", cartella, "--sigla", "B", "--numero", "3", "--categoria", "1=1"}), 0);
    EXPECT_EQ((*this)({"ordine", cartella, "--sigla", "b", "--numero", "3", "--categoria", "2=1"}), 1);
    EXPECT_EQ(err.str(), "L'ordine B 3 è già in coda.\n");
    EXPECT_EQ(leggi("Select count(*) from DettaglioLumigrafo"), "1");
    EXPECT_EQ(leggi("Select count(*) from ScontriniEmessi"), "1");
}

TEST_F(Strumento, NonSovrascriveMai) {
    std::filesystem::create_directory(cartella);
    std::ofstream(cartella + "/" + kFileArchivio) << "prezioso";
    EXPECT_EQ((*this)({"crea", cartella}), 1);
    EXPECT_NE(err.str().find("esiste già"), std::string::npos);
    EXPECT_EQ(std::filesystem::file_size(cartella + "/" + kFileArchivio), 8u);
    EXPECT_EQ((*this)({"mostra", cartella}), 1);
    EXPECT_EQ((*this)({"crea", cartella, "--formato", "access"}), 1);
    EXPECT_EQ(std::filesystem::file_size(cartella + "/" + kFileArchivio), 8u);
}

class ArchivioDimostrativo : public Strumento, public ::testing::WithParamInterface<const char*> {};
INSTANTIATE_TEST_SUITE_P(Formati, ArchivioDimostrativo, ::testing::Values("sqlite", "access"));

TEST_P(ArchivioDimostrativo, EIntero) {
    ASSERT_EQ((*this)({"crea", cartella, "--formato", GetParam(), "--dimostrativo", "60"}), 0) << err.str();
    EXPECT_EQ((*this)({"verifica", cartella}), 0) << out.str();
    EXPECT_EQ(leggi("Select count(*) from Lumigrafo"), "60");
    // What makes it worth showing: with and without a letter, several departments, highlighted, partly
    // served.
    for (const char* condizione : {"Sigla = ''", "Sigla = 'E'", "Evidenzia = True",
                                   "Categoria1 + Categoria2 + Categoria3 + Categoria4 < -1"})
        EXPECT_NE(leggi(std::string("Select count(*) from Lumigrafo Where ") + condizione), "0")
            << condizione;
    EXPECT_NE(leggi("Select count(*) from DettaglioLumigrafo Where SERVITO = True"), "0");
    EXPECT_EQ(
        leggi("Select count(*) from Lumigrafo Where Categoria1 + Categoria2 + Categoria3 + Categoria4 = 0"),
        "0");
    // The receipts add up, and the lines tell the same as the queue.
    EXPECT_EQ(leggi("Select count(*) from ScontriniEmessi s Where abs(Totale - (Select sum(d.Quantita * "
                    "d.Prezzo) from "
                    "Dettaglio d Where d.Sigla = s.Sigla and d.Numero = s.Numero)) > 0.001"),
              "0");
    EXPECT_EQ(leggi("Select count(*) from DettaglioLumigrafo Where SERVITO = False"),
              leggi("Select -sum(Categoria1 + Categoria2 + Categoria3 + Categoria4) from Lumigrafo"));
    const std::string prima = leggi("Select * from Lumigrafo Order by Sigla, Numero");
    std::filesystem::remove_all(cartella);
    ASSERT_EQ((*this)({"crea", cartella, "--dimostrativo", "60"}), 0);
    EXPECT_EQ(leggi("Select * from Lumigrafo Order by Sigla, Numero"), prima);
}

TEST_F(Strumento, ChiamateErrate) {
    const std::vector<std::string> casi[] = {
        {},
        {"apri", cartella},
        {"crea"},
        {"crea", cartella, "altra"},
        {"crea", cartella, "--formato", "dbf"},
        {"crea", cartella, "--dimostrativo", "0"},
        {"crea", cartella, "--dimostrativo"},
        {"ordine", cartella, "--numero", "1"},
        {"ordine", cartella, "--categoria", "1=1"},
        {"ordine", cartella, "--numero", "32768", "--categoria", "1=1"},
        {"ordine", cartella, "--numero", "1x", "--categoria", "1=1"},
        {"ordine", cartella, "--numero", "1", "--categoria", "11=1"},
        {"ordine", cartella, "--numero", "1", "--categoria", "1"},
        {"ordine", cartella, "--numero", "1", "--categoria", "1=0"},
        {"ordine", cartella, "--numero", "1", "--categoria", "1=1", "--categoria", "1=2"},
        {"ordine", cartella, "--sigla", "AB", "--numero", "1", "--categoria", "1=1"},
        {"ordine", cartella, "--sigla", "'", "--numero", "1", "--categoria", "1=1"},
        {"mostra", cartella, "--tutto"},
    };
    for (const auto& argomenti : casi) {
        EXPECT_EQ((*this)(argomenti), 2) << (argomenti.empty() ? "" : argomenti.back());
        EXPECT_FALSE(err.str().empty());
        EXPECT_FALSE(std::filesystem::exists(cartella));
    }
    EXPECT_EQ((*this)({"crea", "--help"}), 0);
    EXPECT_NE(out.str().find("--dimostrativo N"), std::string::npos);
    EXPECT_EQ((*this)({"--version"}), 0);
    EXPECT_EQ(out.str().find("lumigrafo-archivio "), 0u);
}

TEST(CodiceScontrino, CifraDiControllo) {
    EXPECT_EQ(archivio::codiceScontrino("A", 1, 12), "5996501000128");
    EXPECT_EQ(archivio::codiceScontrino("", 0, 32767), "5990000327670");
}

} // namespace
} // namespace lumigrafo
