#include "fiscale/configurazione.h"
#include "fiscale/lettura.h"
#include "fiscale/utilita.h"
#include "tests/fiscale/banco.h"

#include <atomic>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <thread>

namespace lumigrafo::prova {
namespace {

using testing::HasSubstr;

TEST(Componente, AReceiptBecomesAFileAndItsSecondOneACopy) {
    BancoFiscale b;
    b.impostazioni.caratteri = 30;
    b.impostazioni.intestazione[0] = "Sagra della Castagna";
    b.impostazioni.piede[1] = "Grazie!";
    ASSERT_TRUE(b.emetti(7));
    EXPECT_EQ(b.file("scontrino_20260315_A12_7.txt"), R"(     Sagra della Castagna
------------------------------
         ORDINE A 12
15/03/2026 20:30          N. 7
------------------------------
Lasagne al ragù          16,00
  2 x 8,00
Caffè                     3,50
------------------------------
TOTALE                 € 19,50
           Grazie!
)");
    b.orologio.ora.minuto = 31;
    ASSERT_TRUE(b.emetti(7));
    EXPECT_THAT(b.file("scontrino_20260315_A12_7_2.txt"), HasSubstr("*** COPIA ***"));
    EXPECT_THAT(b.file("scontrino_20260315_A12_7.txt"), testing::Not(HasSubstr("COPIA")));
    EXPECT_EQ(b.registro().size(), 2U);
    // Another receipt of a new archive that counts from 1 again is no copy.
    b.archivio.esegui("UPDATE ScontriniEmessi SET Numero = 13");
    ASSERT_TRUE(b.emetti(7));
    EXPECT_THAT(b.file("scontrino_20260315_A13_7.txt"), testing::Not(HasSubstr("COPIA")));
}

TEST(Componente, WhatTheArchiveLacksIsLeftOut) {
    const struct {
        const char *nome, *cambia, *contiene;
    } casi[] = {
        {"no columns of the cash side",
         "ALTER TABLE Dettaglio DROP COLUMN Descrizione; ALTER TABLE Dettaglio DROP COLUMN Quantita;"
         "ALTER TABLE Dettaglio DROP COLUMN Prezzo; ALTER TABLE Dettaglio DROP COLUMN Totale;"
         "ALTER TABLE ScontriniEmessi DROP COLUMN Totale",
         "Articolo\nArticolo\n---"},
        {"a total that isn't the lines'", "UPDATE ScontriniEmessi SET Totale = 18",
         "Subtotale                          19,50\nDifferenza                         -1,50\nTOTALE                           € 18,00"},
        {"no lines", "DELETE FROM Dettaglio", "TOTALE                           € 19,50"},
        {"commands to the printer",
         "UPDATE Dettaglio SET Descrizione = 'a' || char(27) || 'p' || char(10) || 'b'",
         "a p b                              16,00"},
        {"longer than a line",
         "UPDATE Dettaglio SET Descrizione = 'Tagliatelle ai funghi porcini con panna e prezzemolo'",
         "Tagliatelle ai funghi porcini con\npanna e prezzemolo                 16,00"},
    };
    for (const auto& caso : casi) {
        SCOPED_TRACE(caso.nome);
        BancoFiscale b;
        b.impostazioni.caratteri = 40;
        b.archivio.esegui(caso.cambia);
        b.db = b.ws.OpenDatabase((b.cartella.percorso() / "archivio.mdb").string());
        EXPECT_TRUE(b.emetti(7)) << b.avviso();
        EXPECT_THAT(b.file("scontrino_20260315_A12_7.txt"), HasSubstr(caso.contiene));
    }
}

TEST(Componente, ARowChangedBetweenTheCallAndTheReceipt) {
    for (const auto& [cambia, testo] : {
             std::pair("UPDATE ScontriniEmessi SET Stornato = -1",
                       "Lo scontrino dell'ordine A 12 è stato stornato."),
             {"DELETE FROM ScontriniEmessi", "Lo scontrino n. 7 non è più nell'archivio."},
         }) {
        BancoFiscale b;
        const auto c = b.componente();
        b.archivio.esegui(cambia);
        bool esito = true;
        c->EmettiScontrino(7, "", 1, esito);
        EXPECT_FALSE(esito);
        EXPECT_THAT(b.avviso(), HasSubstr(testo));
        EXPECT_TRUE(b.registro().empty()); // nothing was tried
        EXPECT_FALSE(std::filesystem::exists(b.cartella.percorso() / "Scontrini"));
    }
}

TEST(Componente, HeaderAndLinesBelongTogetherWhileAnotherStationRenumbers) {
    BancoFiscale b;
    b.archivio.esegui("PRAGMA journal_mode = WAL");
    std::atomic<bool> basta = false;
    std::thread altra([&] {
        // A bare connection: the engine's own would put the journal back, which makes readers wait.
        sqlite3* db = nullptr;
        sqlite3_open((b.cartella.percorso() / "archivio.mdb").c_str(), &db);
        sqlite3_busy_timeout(db, 5000);
        for (int n = 100; !basta; ++n) {
            const std::string numero = std::to_string(n);
            const std::string sql = "BEGIN IMMEDIATE; UPDATE ScontriniEmessi SET Numero = " + numero +
                                    ", Totale = 0; UPDATE Dettaglio SET Numero = " + numero + "; COMMIT";
            EXPECT_EQ(sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK);
        }
        sqlite3_close(db);
    });
    for (int volta = 0; volta < 200; ++volta)
        ignorandoGuasti([&] { EXPECT_FALSE(leggiScontrino(*b.db, 7).righe.empty()); });
    basta = true;
    altra.join();
}

TEST(Componente, NothingIsPrintedWithoutTheOrderToNorIntoAFolderThatCantBeWritten) {
    BancoFiscale b;
    const auto c = b.componente();
    c->Stampa(false);
    bool esito = true;
    c->EmettiScontrino(7, "", 1, esito);
    EXPECT_FALSE(esito);
    EXPECT_TRUE(b.registro().empty());
    b.impostazioni.indirizzo() = "archivio.mdb"; // a file, not a folder
    EXPECT_FALSE(b.emetti(7));
    EXPECT_EQ(b.registro().at(0).fine, Fine::NonStampato);
}

TEST(Utilita, TheListTheStateAndOneAgain) {
    BancoFiscale b(TipoDriver::Rete);
    EXPECT_FALSE(b.emetti(7) || b.registro().size() > 0); // no address: no attempt
    b.impostazioni.indirizzo() = "127.0.0.1:1";
    EXPECT_FALSE(b.emetti(7));
    b.nelleUtilita = [&](UtilitaFiscale& u) {
        u.aggiorna();
        EXPECT_THAT(u.controlli()("lblStato").Caption(), HasSubstr("non risponde"));
        ASSERT_EQ(u.elenco().Rows(), 1);
        EXPECT_EQ(u.elenco().testo(0, 1), "A 12");
        EXPECT_EQ(u.elenco().testo(0, 3), "non stampato");
        b.impostazioni.driver = TipoDriver::File;
        static_cast<void>(scriviImpostazioniFiscali(b.cartella.percorso(), b.impostazioni));
        b.orologio.ora.minuto = 45;
        b.avvisi.risposte = {Risposta::No, Risposta::Si};
        u.clic("cmdRistampa");
        EXPECT_EQ(u.elenco().Rows(), 1);
        u.clic("cmdRistampa");
        EXPECT_EQ(u.elenco().testo(0, 3), "stampato");
        // The identifier is another order's by now.
        b.archivio.esegui("UPDATE ScontriniEmessi SET Numero = 99");
        u.clic("cmdRistampa");
        EXPECT_THAT(b.avviso(), HasSubstr("è ora dell'ordine A 99"));
        EXPECT_EQ(u.elenco().Rows(), 2);
    };
    b.componente()->MostraUtilita();
}

TEST(Impostazioni, EachDriverKeepsItsAddressAndBadOnesStay) {
    BancoFiscale b;
    int chiusure = 0;
    b.nelleImpostazioni = [&](ConfigurazioneFiscale& c) {
        c.allaFine([&] { ++chiusure; });
        auto& k = c.controlli();
        c.clic("cmdProva", -1); // the file driver prints without any setting
        EXPECT_EQ(b.avviso(), "Prova di stampa riuscita.");
        EXPECT_THAT(b.file("prova.txt"), HasSubstr("€ 1,20"));
        c.clic("cmdDriver", 1);
        c.clic("cmdSalva", -1);
        EXPECT_EQ(chiusure, 0); // no address yet
        k("txtIndirizzo").Caption(" 10.0.0.7 ");
        k("txtIntestazione", 1).Caption("Pro Loco");
        c.clic("cmdDriver", 4);
        k("txtIndirizzo").Caption("/opt/stampa");
        c.clic("cmdDriver", 1);
        EXPECT_EQ(k("txtIndirizzo").Caption(), "10.0.0.7");
        c.clic("cmdMeno", -1);
        c.clic("cmdStato", -1);
        c.clic("cmdSalva", -1);
    };
    b.configura();
    EXPECT_EQ(chiusure, 1);
    const auto lette = leggiImpostazioniFiscali(b.cartella.percorso());
    EXPECT_EQ(lette.driver, TipoDriver::Rete);
    EXPECT_EQ(lette.indirizzi, (std::array<std::string, kTipiDriver>{"", "10.0.0.7", "", "", "/opt/stampa"}));
    EXPECT_EQ(lette.intestazione[1], "Pro Loco");
    EXPECT_EQ(lette.caratteri, 41);
    EXPECT_FALSE(lette.controllaStato);
}

TEST(Impostazioni, OddFilesAndAddresses) {
    BancoFiscale b;
    static_cast<void>(
        sostituisciFile(b.cartella.percorso() / kFileFiscale,
                        "[Fiscale]\nDriver=telegrafo\nCaratteri=900\nLimite=presto\nSelettore=-4\n"));
    const auto i = leggiImpostazioniFiscali(b.cartella.percorso());
    EXPECT_EQ(i.driver, TipoDriver::File);
    EXPECT_EQ(i.caratteri, kMassimoCaratteri);
    EXPECT_EQ(i.limite, 15);
    EXPECT_EQ(i.selettore, 0);
    EXPECT_EQ(dividiIndirizzo("[::1]:9200").host, "::1");
    EXPECT_EQ(dividiIndirizzo("[::1]:9200").porta, 9200);
    EXPECT_EQ(dividiIndirizzo("fe80::1").porta, kPortaStampante);
    EXPECT_EQ(dividiIndirizzo("10.0.0.7:70000").porta, 0);
}

} // namespace
} // namespace lumigrafo::prova
