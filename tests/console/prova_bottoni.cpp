#include "tests/console/banco.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lumigrafo::prova {
namespace {

using namespace std::chrono_literals;
using testing::Contains;
using testing::ElementsAre;

TEST(Bottoni, ThePanelGoesAwayByItself) {
    Banco b;
    b.caricata();
    const Controllo& pannello = b.console().controlli()("fraBottoni");
    b.console().clic("cmdAllarga", kSenzaIndice);
    b.timers.avanza(4999ms);
    EXPECT_TRUE(pannello.Visible());
    b.timers.avanza(1ms);
    EXPECT_FALSE(pannello.Visible());
    EXPECT_TRUE(b.processi.avviati.empty()); // the companion program is never started
    for (const char* chiude : {"cmdChiudi", "fraBottoni", "cmdLumigrafo", "cmdAggiorna", "cmdModalita"}) {
        b.console().clic("cmdAllarga", kSenzaIndice);
        b.console().clic(chiude, 0);
        EXPECT_FALSE(pannello.Visible()) << chiude;
    }
}

TEST(Bottoni, DialogsStopTheCompanionFirst) {
    struct Caso {
        const char* nome;
        std::int16_t tipo;
        bool locale;
        Diario attesi;
    };
    const Diario prima{"termina PrimoPiano.exe", "termina primopiano.exe"};
    const auto con = [&prima](const char* dialogo) {
        Diario d = prima;
        d.push_back(dialogo);
        return d;
    };
    const Caso casi[] = {
        {"cmdComunicazione", 0, false, con("frmComunicazione")},
        {"cmdComunicazione", 4, false, {"messaggio Non possibile con sistema Avanti Prossimo"}},
        {"cmdRipristina", 0, false, con("frmRipristina")},
        {"cmdUscita", 0, false, con("frmSpegni")},
    };
    for (const Caso& caso : casi) {
        Banco b;
        b.caricata();
        b.console().stato().TipoLumigrafo = caso.tipo;
        b.console().stato().PathDB = caso.locale ? b.cartella.percorso().string() : "/altrove";
        b.console().clic(caso.nome, kSenzaIndice);
        EXPECT_EQ(b.diario, caso.attesi) << caso.nome;
    }
}

TEST(Bottoni, TheStationWithTheArchiveFillsNumbersInsteadOfRestoring) {
    Banco b;
    b.imposta("Categoria0", 1);
    b.caricata();
    b.archivio.ordine("A", 1, {{1, 1}});
    b.console().clic("cmdRipristina", kSenzaIndice);
    EXPECT_THAT(b.diario, Contains("frmInserisciNumeri"));
    EXPECT_THAT(b.celle(0), Contains("A  1")); // the grids are rebuilt after it
}

TEST(Bottoni, PlacingTheBoardGoesStepByStep) {
    for (const bool capace : {true, false}) { // a machine that can't extend its desktop goes on as it is
        Banco b;
        b.caricata();
        b.desktop.capace = capace;
        b.dialoghi.durante = [&b] { b.impostazioni.ScriviIni(kSezioneForm, "Left", -19200); };
        b.console().clic("cmdPosizionaLumigrafo", kSenzaIndice);
        EXPECT_THAT(b.diario,
                    ElementsAre("termina PrimoPiano.exe", "termina primopiano.exe", "videata in vista",
                                "cedi cmdLumigrafo/1", "videata normale", "console in vista",
                                "videata nascosta", "estendi", "attendi 2000", "massimizza",
                                "cedi cmdPosizionaLumigrafo/4", "ridisponi", "attendi 1000", "frmSagoma",
                                "videata in vista", "videata a -19200"));
    }
}

TEST(Bottoni, MenusAskForThePasswordFirst) {
    Banco b;
    b.caricata();
    b.dialoghi.passwordGiusta = false;
    b.console().mnuDatabase();
    b.console().mnuImposta();
    EXPECT_THAT(b.diario, ElementsAre("password Password admin 81726", "termina PrimoPiano.exe",
                                      "termina primopiano.exe", "password Password admin 81726"));
    EXPECT_TRUE(b.board().caricata());
    b.dialoghi.passwordGiusta = true;
    b.diario.clear();
    b.console().mnuDatabase();
    b.console().mnuImposta();
    EXPECT_THAT(b.diario, ElementsAre("password Password admin 81726", "termina PrimoPiano.exe",
                                      "termina primopiano.exe", "frmDatabase", "termina PrimoPiano.exe",
                                      "termina primopiano.exe", "password Password admin 81726",
                                      "videata chiusa", "frmImposta"));
    EXPECT_FALSE(b.board().caricata());
}

} // namespace
} // namespace lumigrafo::prova
