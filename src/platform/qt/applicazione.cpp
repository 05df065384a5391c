#include "platform/qt/applicazione.h"

#include "platform/qt/aspetto.h"

#include <QSocketNotifier>
#include <QTimer>

#include <utility>

namespace lumigrafo {

namespace {

/// Number of a failure that isn't one of ours.
constexpr int kErroreInterno = 51;

/// A notifier of a network socket; those of the window system go on.
bool dellaRete(const QObject* notificatore) {
    return notificatore->parent() && notificatore->parent()->inherits("QAbstractSocketEngine");
}

} // namespace

Avviso avvisoDiGuasto(const Guasto& g) {
    return {"Errore di run-time '" + std::to_string(g.numero()) + "':\n\n" + g.descrizione(), "Lumigrafo",
            Icona::Critica, Bottoni::Ok};
}

Applicazione::Applicazione(int& argc, char** argv, Avvisi& avvisi, Uscita& uscita)
    : QApplication(argc, argv), avvisi_(avvisi), uscita_(uscita) {
    setApplicationName(QStringLiteral("lumigrafo"));
    setQuitOnLastWindowClosed(false);
    installTranslator(&italiano_);
    aspetto::applica(*this);
}

int Applicazione::esegui(std::function<void()> avvio) {
    QTimer::singleShot(0, this, std::move(avvio));
    return exec();
}

bool Applicazione::notify(QObject* destinatario, QEvent* evento) {
    // After a failure the program does nothing more; timers and cash desks would go on behind the box.
    if (finita_ && evento->type() == QEvent::Timer && qobject_cast<QTimer*>(destinatario))
        return true;
    if (finita_ && evento->type() == QEvent::SockAct && dellaRete(destinatario)) {
        static_cast<QSocketNotifier*>(destinatario)->setEnabled(false); // or it would ask again and again
        return true;
    }
    try {
        return QApplication::notify(destinatario, evento);
    } catch (const Guasto& g) {
        guasto(g);
    } catch (const std::exception& e) {
        guasto(Guasto(kErroreInterno, e.what()));
    }
    return true;
}

void Applicazione::guasto(const Guasto& g) {
    if (std::exchange(finita_, true))
        return;
    avvisi_.chiedi(avvisoDiGuasto(g));
    uscita_.termina(1);
}

} // namespace lumigrafo
