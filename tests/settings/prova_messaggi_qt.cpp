#include "platform/finti/finti.h"
#include "platform/guasto.h"
#include "settings/qt/messaggi_qt.h"
#include "tests/settings/modale.h"

#include <string>

namespace lumigrafo::prova {
namespace {

using namespace std::chrono_literals;

class MessaggiQtTest : public testing::Test {
protected:
    void TearDown() override { EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty()); }

    TimersFinti timers;
    MessaggiQt messaggi{timers};
    int viste = 0;
};

TEST_F(MessaggiQtTest, ilChiamanteAspettaLoScattoOIlClic) {
    poi([&](QWidget& modale) {
        EXPECT_EQ(modale.objectName(), QLatin1String("frmMessaggio"));
        EXPECT_EQ(figlio(modale, "lblMessaggio")->accessibleName(), QLatin1String("Salvataggio eseguito"));
        timers.avanza(999ms);
        EXPECT_TRUE(modale.isVisible());
        ++viste;
        timers.avanza(1ms);
    });
    messaggi.MostraMessaggio("Salvataggio eseguito", 1);
    EXPECT_EQ(viste, 1);
    poi([](QWidget& modale) { tocca(modale, "lblMessaggio"); });
    messaggi.MostraMessaggio("Salvataggio eseguito", 30);
    poi([](QWidget& modale) {
        EXPECT_EQ(modale.objectName(), QLatin1String("frmSplash"));
        QTest::mouseClick(modale.childAt(5, 5), Qt::LeftButton);
    });
    messaggi.MostraSplash();
    poi([](QWidget& modale) { modale.close(); });
    messaggi.MostraMessaggio("Salvataggio eseguito", 30);

    EXPECT_THROW(messaggi.MostraMessaggio("Salvataggio eseguito", 33), Guasto);
}

TEST_F(MessaggiQtTest, finisconoAncheUnoDentroLAltro) {
    poi([&](QWidget& splash) {
        poi([&](QWidget& secondo) {
            EXPECT_NE(&secondo, &splash);
            timers.avanza(2500ms); // the start window's time is over first
            EXPECT_FALSE(splash.isVisible());
            EXPECT_TRUE(secondo.isVisible());
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
