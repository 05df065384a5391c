#include "platform/guasto.h"
#include "tests/console/banco.h"

#include <fstream>

namespace lumigrafo::prova {
namespace {

std::string percorso(const Banco& b) {
    return (b.cartella.percorso() / "archivio.mdb").string();
}

TEST(Avvio, TheLoadGoesStepByStep) {
    Banco b;
    b.reparti({1, 2});
    b.imposta("Vocale", 1);
    b.archivio.ordine("A", 1, {{1, 1}});
    b.console().carica();
    EXPECT_THAT(b.diario,
                ElementsAre("istanza", "ScegliVoce", "attendi 400", "cedi CaricaVideataInizio/9",
                            "cedi Form_Load/12", "cedi Form_Load/16", "splash", "cedi Form_Load/18",
                            "videata caricata", "cedi Videata/Load", "videata normale", "videata a 0",
                            "videata in vista", "cedi cmdLumigrafo/1", "videata normale", "console in vista",
                            "cedi Form_Load/18 mostrato", "android -1", "mnuFiscale nascosto"));
    EXPECT_EQ(b.scritta("lblDB"), percorso(b));
    EXPECT_TRUE(std::filesystem::is_empty(b.cartella.percorso() / "log.vocal.txt"));
    EXPECT_TRUE(b.stato.VoceAttiva);
}

TEST(Avvio, FirstActivationHappensOnceAndTestsTheStoredTruthValue) {
    for (const auto& [valore, posiziona] :
         {std::pair("1", false), {"-1", true}, {"0", false}, {"True", true}}) {
        Banco b;
        b.imposta("Posiziona", valore);
        b.caricata();
        b.console().attiva();
        EXPECT_EQ(b.diario.front() == "termina PrimoPiano.exe", posiziona) << valore;
        EXPECT_EQ(b.diario.back(), "console in primo piano");
        const auto righe = b.diario.size();
        b.console().attiva();
        EXPECT_EQ(b.diario.size(), righe);
    }
}

TEST(Avvio, ASecondStartSaysSoAndEndsUnlessItIsARestart) {
    Banco b;
    b.sistema.precedente = true;
    EXPECT_THROW(b.console().carica(), FineProcesso);
    EXPECT_EQ(b.messaggi.mostrati.at(0),
              (std::pair<std::string, std::int16_t>(
                  "Lumigrafo risulta già avviato, in caso di problemi riavviare il pc.", 4)));
    EXPECT_EQ(b.diario.back(), "fine 0");

    Banco riavviato;
    riavviato.sistema.precedente = true;
    riavviato.ambiente.argomenti = "RIAVVIO";
    riavviato.console().carica();
    EXPECT_THAT(riavviato.diario, Not(Contains("splash")));
    // The board is shown as soon as the grids are loaded, and once more at the end.
    EXPECT_EQ(std::count(riavviato.diario.begin(), riavviato.diario.end(), "cedi cmdLumigrafo/1"), 2);
}

TEST(Avvio, AnAbsentArchiveWarnsOnceAndEndsAfterTheDialog) {
    const struct {
        const char* cartella;
        const char* archivio;
        bool risponde;
        const char* esito;
    } casi[] = {
        {"/non/esiste", "/non/esiste/archivio.mdb", true, ""},
        {"\\\\192.168.1.10\\dati", "\\\\192.168.1.10\\dati\\archivio.mdb", true,
         "PING SU 192.168.1.10 RIUSCITO CORRETTAMENTE"},
        {"\\\\SERVER\\dati\\x", "\\\\SERVER\\dati\\x\\archivio.mdb", false,
         "PING SU SERVER NON RIUSCITO\r\n\r\nControllare che il server sia acceso, che i cavi "
         "di rete siano collegati e che i led del switch siano accesi."},
    };
    for (const auto& [cartella, archivio, risponde, esito] : casi) {
        SCOPED_TRACE(cartella);
        Banco b;
        b.imposta("DatabaseLumigrafo", cartella);
        b.sistema.risponde = risponde;
        EXPECT_THROW(b.console().carica(), FineProcesso);
        const Avviso& avviso = b.avvisi.mostrati.at(0);
        EXPECT_EQ(avviso.testo,
                  std::string("Errore di collegamento al database ") + archivio + "\r\n\r\n" + esito);
        EXPECT_EQ(avviso.titolo, "");
        EXPECT_EQ(avviso.icona, Icona::Esclamazione);
        EXPECT_EQ(b.orologio.atteso, 3s);
        EXPECT_THAT(Diario(b.diario.end() - 4, b.diario.end()),
                    ElementsAre("termina PrimoPiano.exe", "termina primopiano.exe", "frmDatabase", "fine 0"));
    }
}

TEST(Avvio, AnArchiveThatComesUpDuringTheWaitIsTaken) {
    Banco b;
    const auto altrove = b.cartella.percorso() / "poi.mdb";
    std::filesystem::rename(percorso(b), altrove);
    b.orologio.durante = [&] {
        if (std::filesystem::exists(altrove))
            std::filesystem::rename(altrove, percorso(b));
    };
    b.console().carica();
    EXPECT_THAT(b.avvisi.mostrati, testing::IsEmpty());
}

TEST(Avvio, AnArchiveThatCannotBeOpenedIsNamedWithItsNumber) {
    Banco b;
    std::ofstream(percorso(b), std::ios::trunc) << "non è un archivio";
    EXPECT_THROW(b.console().carica(), FineProcesso);
    EXPECT_EQ(b.avvisi.mostrati.at(0).testo, "Errore 3343 apertura database: " + percorso(b));
    EXPECT_EQ(b.avvisi.mostrati.at(0).titolo, "ERRORE");
    EXPECT_EQ(b.avvisi.mostrati.at(0).icona, Icona::Critica);
    EXPECT_EQ(b.diario.back(), "fine 1");
}

TEST(Avvio, TheBusinessDayChangesAtFive) {
    const std::pair<DataOra, Data> casi[] = {{{{2026, 3, 1}, 4, 59, 59}, {2026, 2, 28}},
                                             {{{2026, 3, 1}, 5, 0, 0}, {2026, 3, 1}},
                                             {{{2028, 3, 1}, 0, 0, 0}, {2028, 2, 29}},
                                             {{{2027, 1, 1}, 2, 0, 0}, {2026, 12, 31}}};
    for (const auto& [ora, data] : casi) {
        Banco b;
        b.orologio.ora = ora;
        b.console().carica();
        EXPECT_EQ(b.stato.DataCompetenza, data);
    }
}

TEST(Avvio, StaleNumbersGoAndThoseOfAnOpenServiceComeBack) {
    for (const bool aperti : {false, true}) {
        Banco b;
        b.reparti({1, 2});
        if (aperti)
            b.archivio.ordine("A", 5, {{1, 1}});
        b.videata.ScriviIni("0", "Numero3", "A 4");
        b.caricata();
        EXPECT_EQ(b.posti(0)[2], aperti ? "A 4" : "");
        EXPECT_EQ(std::filesystem::exists(b.videata.file()), aperti);
    }
}

TEST(Avvio, ReducedAndAndroidAloneKeepTheBoardMinimised) {
    for (const bool android : {false, true}) {
        Banco b;
        b.ambiente.argomenti = android ? "" : "RIDOTTA";
        b.impostazioni.ScriviIni(kSezioneAndroid, "SoloAndroid", android ? 1 : 0);
        b.console().carica();
        EXPECT_THAT(b.diario, Contains("videata ridotta"));
    }
}

TEST(Avvio, SettingsThatAreGarbage) {
    Banco b;
    std::ofstream(b.impostazioni.file(), std::ios::binary) << std::string("\0\xff[Impostazioni\nVocale", 22);
    b.console().carica(); // nothing readable: the defaults
    EXPECT_EQ(b.stato.NumeroMassimoRighe, 50);
    Banco parole;
    parole.imposta("TipoLumigrafo", "verticale");
    EXPECT_THROW(parole.console().carica(), Guasto);
}

TEST(Avvio, WaysOut) {
    Banco b;
    b.reparti({1});
    b.caricata();
    b.premi("cmdSpegni");
    EXPECT_EQ(b.alimentazione.spegnimenti, 1);
    b.diario.clear();
    EXPECT_THROW(b.console().scarica(), FineProcesso);
    EXPECT_THAT(b.diario,
                ElementsAre("termina PrimoPiano.exe", "termina primopiano.exe", "videata chiusa", "fine 0"));
    EXPECT_EQ(b.impostazioni.LeggiIni(kSezioneForm, "Width"), "12000");

    Banco riavvio;
    riavvio.caricata();
    EXPECT_THROW(riavvio.premi("cmdRiavvia"), FineProcesso);
    EXPECT_THAT(riavvio.diario,
                ElementsAre("server chiuso", "cedi cmdRiavvia/1", "avvia /opt/lumigrafo/lumigrafo RIAVVIO",
                            "attendi 400", "fine 0"));
}

TEST(Avvio, ClearingTheBoardTakesItsFileAndItsNumbers) {
    Banco b;
    b.reparti({1});
    b.archivio.ordine("A", 5, {{1, 1}});
    b.caricata();
    b.clic(0, "A  5");
    b.premi("cmdPulisciLumigrafo");
    EXPECT_FALSE(std::filesystem::exists(b.videata.file()));
    EXPECT_THAT(b.posti(0), Each(""));
    EXPECT_EQ(b.ultimi.LeggiIni("Impo", "Ultimo_0_0"), "A  5");
}

} // namespace
} // namespace lumigrafo::prova
