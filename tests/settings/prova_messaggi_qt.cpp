#include "platform/finti/finti.h"
#include "platform/guasto.h"
#include "settings/qt/messaggi_qt.h"

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <functional>
#include <gtest/gtest.h>
#include <string>

namespace lumigrafo::prova {

using namespace std::chrono_literals;

namespace {

class MessaggiQtTest : public testing::Test {
protected:
    /// `azione` runs once the next modal window is up.
    static void poi(std::function<void(QWidget* modale)> azione) {
        QTimer::singleShot(0, [azione = std::move(azione)] { azione(QApplication::activeModalWidget()); });
    }
    static QWidget* figlio(const QWidget* finestra, const char* nome) {
        return finestra->findChild<QWidget*>(QString::fromLatin1(nome));
    }
    void TearDown() override { EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty()); }

    TimersFinti timers;
    MessaggiQt messaggi{timers};
    int viste = 0;
};

TEST_F(MessaggiQtTest, ilChiamanteAspettaLoScattoOIlClic) {
    poi([&](QWidget* modale) {
        ASSERT_TRUE(modale);
        EXPECT_EQ(modale->objectName(), QLatin1String("frmMessaggio"));
        EXPECT_EQ(figlio(modale, "lblMessaggio")->accessibleName(), QLatin1String("Salvataggio eseguito"));
        timers.avanza(999ms);
        EXPECT_TRUE(modale->isVisible());
        ++viste;
        timers.avanza(1ms);
    });
    messaggi.MostraMessaggio("Salvataggio eseguito", 1);
    EXPECT_EQ(viste, 1);

    poi([&](QWidget* modale) {
        QTest::mouseClick(figlio(modale, "lblMessaggio"), Qt::LeftButton);
        ++viste;
    });
    messaggi.MostraMessaggio("Salvataggio eseguito", 30);
    EXPECT_EQ(viste, 2);

    poi([&](QWidget* modale) {
        EXPECT_EQ(modale->objectName(), QLatin1String("frmSplash"));
        QTest::mouseClick(modale->childAt(5, 5), Qt::LeftButton);
        ++viste;
    });
    messaggi.MostraSplash();
    EXPECT_EQ(viste, 3);

    poi([&](QWidget* modale) { modale->close(); });
    messaggi.MostraMessaggio("Salvataggio eseguito", 30);

    EXPECT_THROW(messaggi.MostraMessaggio("Salvataggio eseguito", 33), Guasto);
}

TEST_F(MessaggiQtTest, finisconoAncheUnoDentroLAltro) {
    QWidget* splash = nullptr;
    poi([&](QWidget* primo) {
        splash = primo;
        poi([&](QWidget* secondo) {
            EXPECT_NE(secondo, splash);
            timers.avanza(2500ms); // the start window's time is over first
            EXPECT_FALSE(splash->isVisible());
            EXPECT_TRUE(secondo->isVisible());
            timers.avanza(500ms);
        });
        messaggi.MostraMessaggio("Posizionamento avvenuto", 3);
        ++viste;
    });
    messaggi.MostraSplash();
    EXPECT_EQ(viste, 1);
}

} // namespace

} // namespace lumigrafo::prova
