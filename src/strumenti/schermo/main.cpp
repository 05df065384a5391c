#include "strumenti/schermo/argomenti.h"
#include "strumenti/schermo/qt/finestra_schermo.h"
#include "strumenti/schermo/qt/ricevitore.h"

#include <QApplication>
#include <QNetworkInterface>

#include <iostream>
#include <memory>

namespace lumigrafo::schermo {

namespace {

using strumenti::kChiamataErrata;
using strumenti::kFallito;
using strumenti::kFatto;

/// The addresses by which other machines find this one.
QString indirizzi() {
    QStringList tutti;
    for (const QHostAddress& a : QNetworkInterface::allAddresses())
        if (a.protocol() == QAbstractSocket::IPv4Protocol && !a.isLoopback())
            tutti.append(a.toString());
    return tutti.isEmpty() ? QStringLiteral("nessuna rete") : tutti.join(QStringLiteral(", "));
}

QString dove(const Argomenti& a) {
    const QString ip = a.indirizzo.empty() ? indirizzi() : QString::fromStdString(a.indirizzo);
    return ip + QStringLiteral(", porta ") + QString::number(a.porta);
}

QHostAddress ascolto(const Argomenti& a) {
    return a.indirizzo.empty() ? QHostAddress(QHostAddress::Any)
                               : QHostAddress(QString::fromStdString(a.indirizzo));
}

bool fallito(const std::optional<QString>& motivo, const Argomenti& a) {
    if (motivo)
        std::cerr << "Non è possibile ascoltare su " << dove(a).toStdString() << ": " << motivo->toStdString()
                  << ".\n";
    return motivo.has_value();
}

int nelTerminale(const Argomenti& a, int argc, char** argv) {
    const QCoreApplication applicazione(argc, argv);
    Ricevitore ricevitore([](const Tabellone& t) { std::cout << comeTesto(t) << std::flush; });
    if (fallito(ricevitore.ascolta(ascolto(a), a.porta), a))
        return kFallito;
    std::cout << "In ascolto su " << dove(a).toStdString() << ". Ctrl+C per finire.\n\n" << std::flush;
    return QCoreApplication::exec();
}

/// Without a display Qt would end the process by a signal.
bool senzaSchermo() {
    for (const char* nome : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        if (!qEnvironmentVariableIsEmpty(nome))
            return false;
#ifdef Q_OS_LINUX
    return true;
#else
    return false;
#endif
}

int nellaFinestra(const Argomenti& a, int argc, char** argv) {
    if (senzaSchermo()) {
        std::cerr << "Non c'è uno schermo: senza --finestra i numeri si mostrano nel terminale.\n";
        return kFallito;
    }
    const QApplication applicazione(argc, argv);
    FinestraSchermo finestra(dove(a));
    Ricevitore ricevitore([&finestra](const Tabellone& t) { finestra.mostra(t); });
    if (fallito(ricevitore.ascolta(ascolto(a), a.porta), a))
        return kFallito;
    finestra.showFullScreen();
    return QApplication::exec();
}

int esegui(int argc, char** argv) {
    try {
        const Argomenti a = leggiArgomenti({argv + (argc > 0 ? 1 : 0), argv + argc});
        if (a.aiuto) {
            std::cout << testoAiuto();
            return kFatto;
        }
        if (a.versione) {
            std::cout << "lumigrafo-schermo " LUMIGRAFO_VERSIONE "\n";
            return kFatto;
        }
        if (!a.indirizzo.empty() && ascolto(a).isNull())
            throw ErroreDiUso("--indirizzo dev'essere un indirizzo IP, non '" + a.indirizzo + "'.");
        return a.finestra ? nellaFinestra(a, argc, argv) : nelTerminale(a, argc, argv);
    } catch (const ErroreDiUso& errore) {
        std::cerr << errore.what() << "\nPer l'elenco delle opzioni: lumigrafo-schermo --help\n";
        return kChiamataErrata;
    }
}

} // namespace

} // namespace lumigrafo::schermo

int main(int argc, char** argv) {
    return lumigrafo::schermo::esegui(argc, argv);
}
