#include "forms/qt/tastiera_widget.h"
#include "platform/finti/finti.h"
#include "platform/finti/messaggi_finti.h"
#include "platform/finti/scelta_cartella_finta.h"
#include "settings/dialoghi.h"
#include "settings/impo_lumigrafo_android.h"
#include "settings/percorso_archivio.h"
#include "settings/qt/dialogo_qt.h"
#include "settings/qt/password_qt.h"
#include "settings/scelta_carattere.h"
#include "settings/sfoglia_cartelle.h"
#include "tests/sostegno/cartella_temporanea.h"

#include <QApplication>
#include <QListWidget>
#include <QTest>
#include <QTimer>

#include <functional>
#include <gtest/gtest.h>

namespace lumigrafo::prova {
namespace {

/// `azione` runs once the next modal window is up.
void poi(std::function<void(QWidget& modale)> azione) {
    QTimer::singleShot(0, [azione = std::move(azione)] {
        QWidget* modale = QApplication::activeModalWidget();
        ASSERT_TRUE(modale && QTest::qWaitForWindowActive(modale));
        azione(*modale);
    });
}

QWidget* figlio(const QWidget& finestra, const char* nome) {
    return finestra.findChild<QWidget*>(QString::fromLatin1(nome));
}

void tocca(const QWidget& finestra, const char* nome) {
    QTest::mouseClick(figlio(finestra, nome), Qt::LeftButton);
}

TEST(PasswordQt, TastieraETocchiInsieme) {
    PompaFinta pompa;
    OrologioFinto orologio;
    SistemaFinto sistema;
    DomandaPassword domanda{CodiceAdmin, "Password admin", kVero};
    const ServiziPassword servizi{pompa, orologio, sistema};
    poi([](QWidget& w) {
        EXPECT_FALSE(w.close()) << "only its own buttons end it";
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

TEST(DialoghiQt, ListaCursoreECartellePassanoAllaLogica) {
    CarattereScelto scelto{"Arial", "30"};
    poi([](QWidget& w) {
        auto* lista = dynamic_cast<QListWidget*>(figlio(w, "lstFont"));
        QTest::mouseClick(lista->viewport(), Qt::LeftButton, {},
                          lista->visualItemRect(lista->item(3)).center());
        QTest::keyClick(figlio(w, "sldFontSize"), Qt::Key_Right);
        tocca(w, "cmdOk");
    });
    mostraDialogo<SceltaCarattere>(scelto);
    EXPECT_EQ(scelto.NomeFontScelto, "Verdana");
    EXPECT_EQ(scelto.DimensioneFontScelta, "32");

    const CartellaTemporanea t;
    std::filesystem::create_directories(t.percorso() / "archivi" / "oggi");
    std::string cartella;
    poi([](QWidget& w) {
        auto* lista = dynamic_cast<QListWidget*>(figlio(w, "lstCartelle"));
        QTest::mouseClick(lista->viewport(), Qt::LeftButton, {},
                          lista->visualItemRect(lista->item(0)).center());
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
    const Ambiente ambiente{cartella.percorso(), "/opt/lumigrafo/lumigrafo", ""};
    SceltaCartellaFinta scelta;
    poi([](QWidget& w) {
        QWidget* pannello = figlio(w, "picTastiera");
        EXPECT_TRUE(pannello->isHidden());
        figlio(w, "txtIP(1)")->setFocus();
        EXPECT_FALSE(pannello->isHidden());
        auto* tastiera = dynamic_cast<TastieraWidget*>(figlio(w, "tastiera"));
        ASSERT_TRUE(tastiera);
        QTest::mouseClick(tastiera, Qt::LeftButton, {}, tastiera->rettangolo(QStringLiteral("7")).center());
        tocca(w, "cmdNascondiTastiera");
        EXPECT_TRUE(pannello->isHidden());
        tocca(w, "cmdApplica");
    });
    mostraDialogo<ImpoLumigrafoAndroid>(ambiente, scelta);
    EXPECT_EQ(FileIni(ambiente.file(kFileImpostazioni)).LeggiIni(kSezioneAndroid, "IpLumDroid1"), "7");
}

} // namespace
} // namespace lumigrafo::prova
