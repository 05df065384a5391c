#include "forms/qt/tastiera_widget.h"
#include "platform/finti/finti.h"
#include "platform/finti/messaggi_finti.h"
#include "platform/finti/scelta_cartella_finta.h"
#include "settings/dialoghi.h"
#include "settings/impo_lumigrafo_android.h"
#include "settings/percorso_archivio.h"
#include "settings/qt/comunicazione_qt.h"
#include "settings/qt/dialogo_qt.h"
#include "settings/qt/password_qt.h"
#include "settings/qt/spegni_qt.h"
#include "settings/scelta_carattere.h"
#include "settings/sfoglia_cartelle.h"
#include "tests/settings/modale.h"
#include "tests/sostegno/cartella_temporanea.h"

#include <QListWidget>
#include <QPlainTextEdit>

#include <array>
#include <gmock/gmock.h>

namespace lumigrafo::prova {
namespace {

using testing::ElementsAre;

TEST(PasswordQt, TastieraETocchiInsieme) {
    PompaFinta pompa;
    OrologioFinto orologio;
    SistemaFinto sistema;
    DomandaPassword domanda{CodiceAdmin, "Password admin", kVero};
    const ServiziPassword servizi{pompa, orologio, sistema};
    poi([](QWidget& w) {
        EXPECT_FALSE(w.close()) << "only its own buttons end it";
        QTest::keyClick(&w, Qt::Key_Escape);
        EXPECT_TRUE(w.isVisible());
        tocca(w, "cmdOK"); // nothing typed
        tocca(w, "cmdAnnulla");
    });
    EXPECT_FALSE(chiediPassword(servizi, domanda));
    poi([](QWidget& w) {
        QTest::keyClicks(&w, QStringLiteral("81x"));
        tocca(w, "xpcmd1(7)");
        QTest::keyClicks(&w, QStringLiteral("26"));
        QTest::keyClick(&w, Qt::Key_Return);
        EXPECT_TRUE(w.isVisible());
        tocca(w, "cmdOK");
    });
    EXPECT_TRUE(chiediPassword(servizi, domanda));
}

void toccaVoce(QListWidget& lista, int riga) {
    QTest::mouseClick(lista.viewport(), Qt::LeftButton, {}, lista.visualItemRect(lista.item(riga)).center());
}

TEST(DialoghiQt, ListaCursoreECartellePassanoAllaLogica) {
    CarattereScelto scelto{"Arial", "30"};
    poi([](QWidget& w) {
        toccaVoce(*figlio<QListWidget>(w, "lstFont"), 3);
        QTest::keyClick(figlio(w, "sldFontSize"), Qt::Key_Right);
        tocca(w, "cmdOk");
    });
    mostraDialogo<SceltaCarattere>(scelto);
    EXPECT_EQ(scelto.NomeFontScelto + scelto.DimensioneFontScelta, "Verdana32");

    const CartellaTemporanea t;
    std::filesystem::create_directories(t.percorso() / "archivi" / "oggi");
    std::string cartella;
    poi([](QWidget& w) {
        auto* lista = figlio<QListWidget>(w, "lstCartelle");
        toccaVoce(*lista, 0);
        lista->setCurrentRow(0);
        QTest::keyClick(lista, Qt::Key_Return);
        tocca(w, "cmdOk");
    });
    mostraDialogo<SfogliaCartelle>(RichiestaCartella{.titolo = "Scelta", .attuale = ""},
                                   std::vector<Luogo>{{"Prova", t.percorso(), true}}, cartella);
    EXPECT_EQ(cartella, (t.percorso() / "archivi" / "oggi").string());
}

TEST(DialoghiQt, LaTastieraSulVideoScriveESegueIlFuoco) {
    const CartellaTemporanea cartella;
    const Ambiente ambiente{cartella.percorso(), "", ""};
    SceltaCartellaFinta scelta;
    poi([](QWidget& w) {
        QWidget* pannello = figlio(w, "picTastiera");
        EXPECT_TRUE(pannello->isHidden());
        figlio(w, "txtIP(1)")->setFocus();
        EXPECT_FALSE(pannello->isHidden());
        auto* tastiera = figlio<TastieraWidget>(w, "tastiera");
        QTest::mouseClick(tastiera, Qt::LeftButton, {}, tastiera->rettangolo(QStringLiteral("7")).center());
        tocca(w, "cmdNascondiTastiera");
        EXPECT_TRUE(pannello->isHidden());
        tocca(w, "cmdApplica");
    });
    mostraDialogo<ImpoLumigrafoAndroid>(ambiente, scelta);
    EXPECT_EQ(FileIni(ambiente.file(kFileImpostazioni)).LeggiIni(kSezioneAndroid, "IpLumDroid1"), "7");
}

TEST(DialoghiQt, EscRinunciaSenzaSalvareNulla) {
    CarattereScelto scelto{"Arial", "30"};
    poi([](QWidget& w) {
        QTest::keyClick(figlio(w, "sldFontSize"), Qt::Key_Right);
        QTest::keyClick(figlio(w, "sldFontSize"), Qt::Key_Escape);
        EXPECT_FALSE(w.isVisible());
    });
    mostraDialogo<SceltaCarattere>(scelto);
    EXPECT_EQ(scelto.DimensioneFontScelta, "30");

    const CartellaTemporanea t;
    const Ambiente ambiente{t.percorso(), "", ""};
    SceltaCartellaFinta cartella;
    poi([](QWidget& w) {
        figlio(w, "cmdAnnulla")->setEnabled(false);
        QTest::keyClick(figlio(w, "txtIP(1)"), Qt::Key_Escape);
        EXPECT_TRUE(w.isVisible()) << "no way out while its own button is none";
        figlio(w, "cmdAnnulla")->setEnabled(true);
        QTest::keyClicks(figlio(w, "txtIP(1)"), QStringLiteral("10.0.0.1"));
        QTest::keyClick(figlio(w, "txtIP(1)"), Qt::Key_Escape);
    });
    mostraDialogo<ImpoLumigrafoAndroid>(ambiente, cartella);
    EXPECT_FALSE(std::filesystem::exists(ambiente.file(kFileImpostazioni)));
}

TEST(DialoghiQt, CioCheSiBatteSubitoPrendeIlPostoDelTesto) {
    const CartellaTemporanea cartella;
    const Ambiente ambiente{cartella.percorso(), "lumigrafo", ""};
    SceltaCartellaFinta scelta;
    MessaggiFinti messaggi;
    ProcessiFinti processi;
    poi([](QWidget& w) {
        auto* tastiera = figlio<TastieraWidget>(w, "tastiera");
        for (const QString& tasto : {QStringLiteral("7"), QStringLiteral("5")})
            QTest::mouseClick(tastiera, Qt::LeftButton, {}, tastiera->rettangolo(tasto).center());
        tocca(w, "cmdApplica");
    });
    mostraDialogo<PercorsoArchivio>(ServiziPercorso{ambiente, messaggi, processi, scelta});
    EXPECT_EQ(FileIni(ambiente.file(kFileImpostazioni)).LeggiIni(kSezioneImpostazioni, "DatabaseLumigrafo"),
              "75");
}

struct SpegniProva : testing::Test {
    Diario diario;
    ProcessiFinti processi{&diario};
    AlimentazioneFinta alimentazione;
    UscitaFinta uscita{&diario};
};

TEST_F(SpegniProva, AReceiptScannedOverItPressesNothing) {
    poi([](QWidget& w) {
        QWidget* chi = QApplication::focusWidget() ? QApplication::focusWidget() : &w;
        QTest::keyClicks(chi, QStringLiteral("5996501001233 "));
        QTest::keyClick(chi, Qt::Key_Return);
        EXPECT_TRUE(w.isVisible());
        tocca(w, "cmdAnnulla");
    });
    mostraSpegni(processi, alimentazione, uscita);
    EXPECT_EQ(alimentazione.spegnimenti + alimentazione.riavvii, 0);
}

TEST_F(SpegniProva, EachButtonStopsTheCompanionAndDoesItsOwn) {
    Spegni spegni(processi, alimentazione, uscita, [&] { diario.emplace_back("indietro"); });
    processi.inEsecuzione = {{"PrimoPiano.exe", 2}};
    spegni.clic("cmdSpegni");
    EXPECT_EQ(alimentazione.spegnimenti, 1);
    EXPECT_THAT(diario, ElementsAre("termina PrimoPiano.exe"));
    diario.clear();
    spegni.clic("cmdAnnulla");
    EXPECT_THROW(spegni.clic("cmdChiudi"), FineProcesso); // none runs any more
    EXPECT_THAT(diario,
                ElementsAre("indietro", "termina PrimoPiano.exe", "termina primopiano.exe", "fine 0"));
    spegni.clic("cmdRiavvia");
    EXPECT_EQ(alimentazione.riavvii, 1);
}

/// A board of the two elements that the message needs, and nothing of a console.
class ConsoleFinta : public RichiamiConsole {
public:
    std::string detto;
    void CaricaVideataInizio(bool) override {}
    void AggiornaDBLumigrafoCucina(const std::string&, const std::string&, std::int16_t,
                                   std::int16_t) override {}
    void SincronizzaLumAndroid(std::int16_t) override {}
    void Parla(const std::string& testo) override { detto = testo; }
    void ScaricaLumigrafo() override {}
    [[nodiscard]] std::string lblReparto(int) const override { return {}; }
    [[nodiscard]] std::int16_t Categoria(int) const override { return 0; }
    [[nodiscard]] Controlli& frmVideata() override { return videata_; }
    void RidisegnaVideata() override {}
    [[nodiscard]] ContestoDati contestoDati() override { throw Guasto(guasti::kOggettoMancante); }

private:
    static constexpr std::array<Descrizione, 2> kElementi{
        {{.nome = "picComunicazione", .visibile = false}, {.nome = "lblComunicazione"}}};
    Layout layout_{"frmVideata", "", 15000, 12000, kNero, kElementi};
    Controlli videata_{layout_};
};

TEST(ComunicazioneQt, IsTypedByTouchAndLeftOnlyThroughItsOwnButton) {
    CartellaTemporanea cartella;
    const Ambiente ambiente{cartella.percorso(), "", ""};
    ConsoleFinta console;
    DesktopFinto desktop;
    MessaggiFinti messaggi;
    bool fatto = false;
    poi([&](QWidget& w) {
        auto* testo = figlio<QPlainTextEdit>(w, "txtComunicazione");
        auto* tastiera = figlio<TastieraWidget>(w, "tastiera");
        ASSERT_TRUE(testo && tastiera);
        const auto batti = [tastiera](const QRect& tasto) {
            EXPECT_GE(tasto.width(), 48);
            EXPECT_GE(tasto.height(), 48);
            QTest::mouseClick(tastiera, Qt::LeftButton, {}, tasto.center());
        };
        const auto scrivi = [&](std::initializer_list<const char*> tasti) {
            for (const char* t : tasti)
                batti(tastiera->rettangolo(QString::fromUtf8(t)));
        };
        batti(tastiera->rettangolo(AzioneTasto::Maiuscole));
        scrivi({"P", "i", "ù", " ", "x"});
        batti(tastiera->rettangolo(AzioneTasto::Cancella));
        tocca(w, "lblEnter");
        scrivi({"#+=", "€", "ABC"});
        batti(tastiera->rettangolo(AzioneTasto::Sinistra));
        scrivi({"5"});
        batti(tastiera->rettangolo(AzioneTasto::Invio));
        EXPECT_TRUE(testo->hasFocus());
        EXPECT_EQ(testo->toPlainText(), QString::fromUtf8("Più \n5\n€"));
        tocca(w, "cmdLeggi");
        EXPECT_EQ(console.detto, "Più \r\n5\r\n€");
        EXPECT_FALSE(w.close());
        EXPECT_TRUE(w.isVisible());
        tocca(w, "cmdVisualizza");
        fatto = true;
        tocca(w, "cmdUscita");
        EXPECT_FALSE(w.isVisible());
    });
    mostraComunicazione({ambiente, console, desktop, messaggi});
    EXPECT_TRUE(fatto);
    EXPECT_FALSE(console.frmVideata()("picComunicazione").Visible());
    EXPECT_EQ(console.frmVideata()("lblComunicazione").Caption(), "Più \r\n5\r\n€");
}

} // namespace
} // namespace lumigrafo::prova
