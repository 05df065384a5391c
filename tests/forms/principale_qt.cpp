#include "platform/qt/applicazione.h"
#include "platform/qt/avvisi_qt.h"
#include "platform/qt/uscita_qt.h"

#include <QtGlobal>

#include <gtest/gtest.h>

namespace {

void avvertimento(QtMsgType tipo, const QMessageLogContext&, const QString& testo) {
    // The display without a screen says by itself what it can't do: size hints, raising a window.
    if (tipo != QtDebugMsg && tipo != QtInfoMsg &&
        !testo.contains(QLatin1String("This plugin does not support")))
        ADD_FAILURE() << "Qt: " << testo.toStdString();
}

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    lumigrafo::AvvisiQt avvisi;
    lumigrafo::UscitaQt uscita;
    lumigrafo::Applicazione applicazione(argc, argv, avvisi, uscita);
    qInstallMessageHandler(avvertimento);
    return RUN_ALL_TESTS();
}
