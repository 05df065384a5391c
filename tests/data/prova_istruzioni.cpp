#include "data/istruzioni.h"
#include "tests/data/con_archivio.h"

namespace lumigrafo {
namespace {

constexpr std::int32_t kOggi = 20260315;

class Istruzioni : public ConArchivio {
protected:
    std::unique_ptr<Recordset> apri(const std::string& sorgente) { return db->OpenRecordset(sorgente); }
};

TEST_F(Istruzioni, LetturaDellaCoda) {
    for (const auto& [sigla, numero] : {std::pair{"B", 2}, {"a", 9}, {"A", 3}, {"", 70}})
        archivio.ordine(sigla, numero, {{1, 2}});
    archivio.ordine(std::nullopt, 80, {{10, 3}});
    for (const auto& [sorgente, atteso] :
         {std::pair<std::string, std::string>{istruzioni::kLumigrafo, "80 70 A3 a9 B2 "},
          {"Select * from Lumigrafo Order by Sigla DESC, Numero DESC", "B2 a9 A3 70 80 "},
          {"Select Sigla, Numero from Lumigrafo Order by Categoria10, Numero", "80 B2 A3 a9 70 "}}) {
        std::string ordine;
        const auto rs = apri(sorgente);
        for (; !rs->Eof(); rs->MoveNext())
            ordine +=
                rs->Fields()["sigla"].Value().aTestoOVuoto() + rs->Fields()["NUMERO"].Value().aTesto() + " ";
        EXPECT_EQ(ordine, atteso);
    }
    archivio.esegui("UPDATE Categorie SET Descrizione = 'Ba\xC5\x82' WHERE Codice = 1"); // in no code page
    EXPECT_EQ(archivio.leggi("SELECT Codice FROM Categorie ORDER BY Descrizione"), "2 1 3");

    const auto somma = apri(istruzioni::kSommaPezzi);
    EXPECT_EQ(somma->Fields()["SommaDiPezzi1"].Value().aIntero16(), 8);
    EXPECT_EQ(somma->Fields()["SommaDiPezzi10"].Value().aIntero16(), 3);
    EXPECT_EQ(somma->Fields()["SommaDiPezzi2"].Value().aIntero16(), 0);

    EXPECT_EQ(apri(istruzioni::kNumero)->Fields()["Numero"].Value().aIntero32(), 0);
    const auto categorie = apri(istruzioni::kCategorie);
    EXPECT_EQ(categorie->RecordCount(), 3);
    EXPECT_EQ(categorie->Fields()["Codice"].Value().aIntero16(), 1);
}

TEST_F(Istruzioni, SommaDellaCodaVuotaENulla) {
    const auto somma = apri(istruzioni::kSommaPezzi);
    EXPECT_EQ(somma->RecordCount(), 1);
    EXPECT_TRUE(somma->Fields()["SommaDiPezzi1"].Value().nullo());
}

TEST_F(Istruzioni, PuliziaERimozioni) {
    archivio.ordine("A", 1, {{1, 1}});
    archivio.ordine("A", 2, {{10, 1}});
    archivio.ordine("A", 3, {});
    archivio.ordine("B", 1, {{2, 1}});
    EXPECT_EQ(db->Execute(istruzioni::kTogliServiti), 1);
    EXPECT_EQ(archivio.coda(), "A1 A2 B1");
    EXPECT_EQ(db->Execute(istruzioni::togliNumero("1")), 2); // of whatever letter
    EXPECT_EQ(archivio.coda(), "A2");
    EXPECT_EQ(db->Execute(istruzioni::kTogliTutti), 1);
    EXPECT_EQ(db->Execute(istruzioni::inserisciNumero("7")), 1);
    EXPECT_EQ(archivio.leggi(
                  "SELECT quote(Sigla), Numero, Categoria1, Categoria8, Categoria9, Pezzi1 FROM Lumigrafo"),
              "''|7|-1|-1|0|0");
}

TEST_F(Istruzioni, StatoServito) {
    archivio.ordine("A", 12, {{1, 1}, {2, 1}});
    archivio.ordine("B", 12, {{1, 1}});
    archivio.ordine(std::nullopt, 12, {{1, 1}});
    EXPECT_EQ(db->Execute(istruzioni::dettaglioLumigrafo(-1, 10, "a", "12", 2)), 1);
    EXPECT_EQ(db->Execute(istruzioni::dettaglio(-1, 10, "A", "12", kOggi)), 2);
    EXPECT_EQ(db->Execute(istruzioni::dettaglio(-1, 10, "A", "12", kOggi - 1)), 0);
    EXPECT_EQ(db->Execute(istruzioni::scontrinoServito("A", "12", kOggi)), 1);
    EXPECT_EQ(archivio.leggi("SELECT SERVITO, MinutiServito FROM DettaglioLumigrafo WHERE Sigla = 'A'"),
              "0|0 -1|10");
    EXPECT_EQ(archivio.leggi("SELECT Sigla, Servito FROM ScontriniEmessi ORDER BY ID_Scontrino"),
              "A|-1 B|0 NULL|0");

    EXPECT_EQ(db->Execute(istruzioni::dettaglioLumigrafo(0, 11, "A", "12")), 2);
    EXPECT_EQ(archivio.leggi("SELECT SERVITO, MinutiServito FROM DettaglioLumigrafo WHERE Sigla = 'A'"),
              "0|11 0|11");
    // An empty letter isn't a null one.
    EXPECT_EQ(db->Execute(istruzioni::dettaglioLumigrafo(-1, 10, "", "12")), 0);

    archivio.ordine("A", 13, {});
    archivio.esegui("INSERT INTO ScontriniEmessi (Sigla, Numero, DataCompetenza, Stornato) VALUES ('A', 13, "
                    "20260315, -1)");
    const auto scontrini = apri(istruzioni::scontrini("A", "13", kOggi));
    EXPECT_EQ(scontrini->RecordCount(), 2);
    EXPECT_TRUE(scontrini->Fields()["Stornato"].Value().aBooleano()); // the newest first
    EXPECT_FALSE(scontrini->Fields()["Servito"].Value().aBooleano());
}

} // namespace
} // namespace lumigrafo
