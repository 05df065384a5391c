#include "tests/console/banco.h"

namespace lumigrafo::prova {
namespace {

constexpr const char *kTermina = "termina PrimoPiano.exe", *kTerminaMinuscolo = "termina primopiano.exe";

TEST(Bottoni, ThePanelGoesAwayByItself) {
    Banco b;
    b.caricata();
    const Controllo& pannello = b.console().controlli()("fraBottoni");
    b.premi("cmdAllarga");
    b.timers.avanza(4999ms);
    EXPECT_TRUE(pannello.Visible());
    b.timers.avanza(1ms);
    EXPECT_FALSE(pannello.Visible());
    EXPECT_TRUE(b.processi.avviati.empty()); // the companion program is never started
    for (const char* chiude : {"cmdChiudi", "fraBottoni", "cmdLumigrafo", "cmdAggiorna", "cmdModalita"}) {
        b.premi("cmdAllarga");
        b.premi(chiude, 0);
        EXPECT_FALSE(pannello.Visible()) << chiude;
    }
}

TEST(Bottoni, DialogsStopTheCompanionFirst) {
    const struct {
        const char* bottone;
        std::int16_t tipo;
        Diario attesi;
    } casi[] = {
        {"cmdComunicazione", 0, {kTermina, kTerminaMinuscolo, "frmComunicazione"}},
        {"cmdComunicazione", 4, {"messaggio Non possibile con sistema Avanti Prossimo"}},
        {"cmdRipristina", 0, {kTermina, kTerminaMinuscolo, "frmRipristina"}},
        {"cmdUscita", 0, {kTermina, kTerminaMinuscolo, "frmSpegni"}},
    };
    for (const auto& [bottone, tipo, attesi] : casi) {
        Banco b;
        b.caricata();
        b.stato.TipoLumigrafo = tipo;
        b.stato.PathDB = "/altrove";
        b.premi(bottone);
        EXPECT_EQ(b.diario, attesi) << bottone;
    }
}

TEST(Bottoni, TheStationWithTheArchiveFillsNumbersInsteadOfRestoring) {
    Banco b;
    b.reparti({1});
    b.caricata();
    b.archivio.ordine("A", 1, {{1, 1}});
    b.premi("cmdRipristina");
    EXPECT_THAT(b.diario, Contains("frmInserisciNumeri"));
    EXPECT_THAT(b.celle(0), Contains("A  1")); // the grids are rebuilt after it
}

TEST(Bottoni, PlacingTheBoardGoesStepByStep) {
    for (const bool capace : {true, false}) { // a machine that can't extend its desktop goes on as it is
        Banco b;
        b.caricata();
        b.desktop.capace = capace;
        b.dialoghi.durante = [&b] { b.impostazioni.ScriviIni(kSezioneForm, "Left", -19200); };
        b.premi("cmdPosizionaLumigrafo");
        EXPECT_THAT(b.diario,
                    ElementsAre(kTermina, kTerminaMinuscolo, "videata in vista", "cedi cmdLumigrafo/1",
                                "videata normale", "console in vista", "videata nascosta", "estendi",
                                "attendi 2000", "massimizza", "cedi cmdPosizionaLumigrafo/4", "ridisponi",
                                "attendi 1000", "frmSagoma", "videata in vista", "videata a -19200"));
    }
}

TEST(Bottoni, MenusAskForThePasswordFirst) {
    Banco b;
    b.caricata();
    b.dialoghi.passwordGiusta = false;
    b.console().mnuDatabase();
    b.console().mnuImposta();
    const std::string password = "password Password admin 81726";
    EXPECT_EQ(b.diario, (Diario{password, kTermina, kTerminaMinuscolo, password}));
    EXPECT_TRUE(b.board().caricata());
    b.dialoghi.passwordGiusta = true;
    b.diario.clear();
    b.console().mnuDatabase();
    b.console().mnuImposta();
    EXPECT_EQ(b.diario, (Diario{password, kTermina, kTerminaMinuscolo, "frmDatabase", kTermina,
                                kTerminaMinuscolo, password, "videata chiusa", "frmImposta"}));
    EXPECT_FALSE(b.board().caricata());
}

} // namespace
} // namespace lumigrafo::prova
