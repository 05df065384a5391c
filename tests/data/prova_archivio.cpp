#include "data/dao.h"
#include "data/jet/catalogo.h"
#include "platform/finti/finti.h"
#include "strumenti/archivio/codice_scontrino.h"
#include "strumenti/archivio/programma.h"
#include "tests/data/jet/esporta.h"
#include "tests/sostegno/archivio_prova.h"
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

    prova::CartellaTemporanea temporanea = prova::CartellaTemporanea::inMemoria();
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

TEST_F(Strumento, UnOrdinePerCasseCheNonTengonoITotali) {
    ASSERT_EQ((*this)({"crea", cartella}), 0);
    ws.OpenDatabase(cartella + "/" + kFileArchivio)->Execute("ALTER TABLE Dettaglio DROP COLUMN Totale");
    EXPECT_EQ((*this)({"ordine", cartella, "--sigla", "A", "--numero", "1", "--categoria", "2=3"}), 0)
        << err.str();
    EXPECT_EQ(leggi("Select Quantita, Prezzo from Dettaglio"), "3|5");
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

/// Rows, nulls and types of all tables of an archive.
std::string tutto(const std::string& cartella) {
    std::string testo;
    const auto db = Workspace().OpenDatabase(cartella + "/" + kFileArchivio);
    for (const char* tabella :
         {"Categorie", "Numero", "Lumigrafo", "DettaglioLumigrafo", "Dettaglio", "ScontriniEmessi"}) {
        const auto rs = db->OpenRecordset(std::string("Select * from ") + tabella + " Order by 1, 2");
        for (const Field& c : rs->Fields().tutti())
            testo += c.Name() + ":" + std::to_string(c.Type()) + "/" + std::to_string(c.Size()) + " ";
        for (; !rs->Eof(); rs->MoveNext(), testo += "\n")
            for (const Field& c : rs->Fields().tutti()) {
                const Valore v = c.Value();
                testo += (v.nullo() ? "NULL" : v.aTesto()) + "|";
            }
    }
    return testo;
}

TEST_P(ArchivioDimostrativo, SiConverteNellAltroFormatoEIndietro) {
    const std::string formato = GetParam(), altro = formato == "access" ? "sqlite" : "access";
    const auto la = cartella + "/la", qua = cartella + "/qua";
    ASSERT_EQ((*this)({"crea", cartella, "--formato", formato, "--dimostrativo", "40"}), 0);
    {
        const auto db = ws.OpenDatabase(cartella + "/" + kFileArchivio);
        db->Execute("Update Lumigrafo Set Sigla = Null, Pezzi2 = Null Where Sigla = 'E'");
        db->Execute("Update Dettaglio Set Prezzo = -1234.5678, Descrizione = 'Più caffè 3€' Where ID = 7");
    }
    ASSERT_EQ((*this)({"converti", cartella, la, "--formato", altro}), 0) << err.str();
    EXPECT_NE(out.str().find("\nLumigrafo: 40 righe.\n"), std::string::npos);
    EXPECT_EQ(out.str().find("non viene copiata"), std::string::npos);
    ASSERT_EQ((*this)({"converti", la, qua, "--formato", formato}), 0) << err.str();
    for (const std::string& dove : {la, qua}) {
        EXPECT_EQ(tutto(dove), tutto(cartella));
        EXPECT_EQ((*this)({"verifica", dove}), 0) << out.str();
    }
    for (const char* tabella : {"Lumigrafo", "ScontriniEmessi", "Dettaglio"}) {
        const auto con = [&](const std::string& dove) {
            return prova::righeOrdinate(prova::mdbExport(dove + "/" + kFileArchivio, tabella));
        };
        if (formato == "access") {
            EXPECT_EQ(con(qua), con(cartella));
        }
    }
    for (const std::string& dove : {la, qua}) // the autonumbers go on behind those that were copied
        EXPECT_EQ((*this)({"ordine", dove, "--sigla", "Z", "--numero", "1", "--categoria", "1=1"}), 0);
    // Nothing is overwritten, and what fails leaves nothing behind.
    EXPECT_EQ((*this)({"converti", cartella, qua, "--formato", altro}), 1);
    EXPECT_EQ((*this)({"converti", cartella + "/nessuna", cartella + "/nuova", "--formato", altro}), 1);
    EXPECT_FALSE(std::filesystem::exists(cartella + "/nuova"));
}

TEST_F(Strumento, LaConversioneDiceCheCosaNonCopia) {
    ASSERT_EQ((*this)({"crea", cartella}), 0);
    prova::ArchivioProva(cartella + "/" + kFileArchivio)
        .esegui("CREATE TABLE Articoli (Codice INTEGER); ALTER TABLE Numero ADD COLUMN Nota TEXT(20)");
    ASSERT_EQ((*this)({"converti", cartella, cartella + "/altra", "--formato", "access"}), 0) << err.str();
    EXPECT_NE(out.str().find("La colonna Nota di Numero non viene copiata.\n"), std::string::npos);
    EXPECT_NE(out.str().find("La tabella Articoli non viene copiata.\n"), std::string::npos);
}

TEST_F(Strumento, RiparaUnArchivioAccess) {
    ASSERT_EQ((*this)({"crea", cartella, "--formato", "access", "--dimostrativo", "30"}), 0);
    EXPECT_EQ((*this)({"ripara", cartella}), 0);
    EXPECT_EQ(out.str(), "Non c'era niente da riparare.\n");
    const std::string prima = tutto(cartella), file = cartella + "/" + kFileArchivio;
    {
        jet::Pagine pagine(file, {.da_soli = true});
        for (const jet::VoceCatalogo& v : leggiCatalogo(pagine))
            if (v.nome == "Lumigrafo")
                pagine.cambia([&] { // its first index has lost its root
                    const auto d = leggiDefinizione(pagine, v.definizione);
                    pagine.modifica(d.indici.front().radice).byte.fill(0);
                    return true;
                });
        pagine.registra();
    }
    EXPECT_EQ((*this)({"verifica", cartella}), 1);
    EXPECT_NE(out.str().find("! la tabella 'Lumigrafo', indice 'LumigrafoOrdine'"), std::string::npos);
    {
        const auto altra = ws.OpenDatabase(file);
        EXPECT_EQ((*this)({"ripara", cartella}), 1) << "another station has it open";
    }
    EXPECT_EQ((*this)({"ripara", cartella}), 0) << err.str();
    EXPECT_NE(out.str().find("rifatto l'indice 'LumigrafoOrdine'"), std::string::npos);
    EXPECT_TRUE(std::filesystem::exists(cartella + "/archivio-prima-della-riparazione.mdb"));
    EXPECT_EQ((*this)({"verifica", cartella}), 0) << out.str();
    EXPECT_EQ(tutto(cartella), prima);
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
        {"verifica"},
        {"ripara", cartella, "altra"},
        {"converti", cartella, "altra"},
        {"converti", cartella, "--formato", "access"},
        {"converti", cartella, "altra", "terza", "--formato", "access"},
        {"converti", cartella, "altra", "--formato", "dbf"},
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
