#include "forms/qt/figura.h"
#include "platform/guasto.h"
#include "platform/qt/applicazione.h"
#include "platform/qt/avvisi_qt.h"
#include "platform/qt/finestra_avviso.h"
#include "platform/qt/uscita_qt.h"

#include <QAbstractButton>
#include <QDialog>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <cstdio>
#include <stdexcept>

// A program that fails in the way its argument names, closes its own error box, and says what the box said.
namespace {

struct Statico {
    ~Statico() { std::puts("statics destroyed"); }
} statico;

int altriScatti = 0;

void chiudiAvviso() {
    if (auto* box = dynamic_cast<lumigrafo::FinestraAvviso*>(QApplication::activeModalWidget())) {
        std::printf("%s|%s|%d|%d\n", qPrintable(box->windowTitle()), qPrintable(box->testo()),
                    static_cast<int>(box->icona()), altriScatti);
        box->accept();
        return;
    }
    QTimer::singleShot(5, qApp, chiudiAvviso);
}

void fallisci(const QString& modo) {
    if (modo == QStringLiteral("eccezione"))
        throw std::runtime_error("cattiva");
    throw lumigrafo::Guasto(6, "Overflow");
}

/// Two network sockets have data at once; the first one's routine fails.
void falliscePerLaRete() {
    auto* ascolto = new QTcpServer(qApp);
    ascolto->listen(QHostAddress::LocalHost);
    QObject::connect(ascolto, &QTcpServer::newConnection, qApp, [ascolto] {
        QTcpSocket* presa = ascolto->nextPendingConnection();
        QObject::connect(presa, &QTcpSocket::readyRead, qApp, [] {
            ++altriScatti;
            fallisci(QStringLiteral("rete"));
        });
    });
    for (int i = 0; i < 2; ++i) {
        auto* cliente = new QTcpSocket(qApp);
        cliente->connectToHost(QHostAddress(QHostAddress::LocalHost), ascolto->serverPort());
        cliente->waitForConnected();
        cliente->write("A");
        cliente->flush();
    }
}

void avvia(const QString& modo) {
    QTimer::singleShot(0, qApp, chiudiAvviso);
    if (modo == QStringLiteral("avvio"))
        fallisci(modo);
    if (modo.contains(QLatin1Char('/'))) { // a picture file
        static lumigrafo::Figura figura([] {});
        figura.carica(modo.toStdString(), {{10, 10}, lumigrafo::Adattamento::Stirata, 1});
        return;
    }
    if (modo == QStringLiteral("rete"))
        return falliscePerLaRete();
    for (int i = 0; i < 2; ++i) { // the second one would go on behind the first one's box
        auto* altro = new QTimer(qApp);
        QObject::connect(altro, &QTimer::timeout, qApp, [modo] {
            ++altriScatti;
            fallisci(modo);
        });
        altro->start(1);
    }
    QDialog esterno, interno;
    QTimer::singleShot(0, &interno, [&] { interno.exec(); });
    esterno.exec();
    std::puts("went on");
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    lumigrafo::AvvisiQt avvisi;
    lumigrafo::UscitaQt uscita;
    lumigrafo::Applicazione applicazione(argc, argv, avvisi, uscita);
    const QString modo = QString::fromLocal8Bit(argv[1]);
    return applicazione.esegui([modo] { avvia(modo); });
}
