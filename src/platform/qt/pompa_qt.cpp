#include "platform/qt/pompa_qt.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QThread>
#include <QWindow>

#include <utility>

// Exported by Qt's Gui library for its own test module, and declared in no header of Gui: asks the window's
// shortcuts, as is done for a key that comes from the window system. True if a shortcut took the key.
Q_GUI_EXPORT bool qt_sendShortcutOverrideEvent(QObject* o, ulong timestamp, int k, Qt::KeyboardModifiers mods,
                                               const QString& text = QString(), bool autorep = false,
                                               ushort count = 1);

namespace lumigrafo {

namespace {

/// A loop of zero timers must not hold the routine for ever.
constexpr int kLimiteMs = 50;
const auto kConsegna = static_cast<QEvent::Type>(QEvent::registerEventType());

/// Where a key of the window system goes: to whatever has the focus now, as if it had just come.
QObject* destinatarioAttuale(const QPointer<QObject>& primo) {
    if (primo && !primo->isWindowType())
        return primo;
    QWindow* fuoco = QGuiApplication::focusWindow();
    return fuoco ? fuoco : primo.data();
}

} // namespace

PompaQt::PompaQt() {
    QCoreApplication::instance()->installEventFilter(this);
}

PompaQt::~PompaQt() = default;

void PompaQt::cedi(std::string_view, Ammessi ammessi) {
    // Installed again: the newest filter sees events first, and a held key must be seen by nobody else.
    QCoreApplication::instance()->installEventFilter(this);
    livelli_.push_back({ammessi, QThread::currentThread()->loopLevel()});
    struct Uscita {
        PompaQt& p;
        ~Uscita() {
            p.livelli_.pop_back();
            p.chiediConsegna();
        }
    } uscita{*this};
    chiediConsegna();
    QCoreApplication::processEvents(QEventLoop::AllEvents, kLimiteMs);
}

bool PompaQt::trattiene() const {
    return !livelli_.empty() && livelli_.back().ammessi == Ammessi::SenzaTastiera &&
           livelli_.back().ciclo == QThread::currentThread()->loopLevel();
}

bool PompaQt::eventFilter(QObject* oggetto, QEvent* evento) {
    const auto tipo = evento->type();
    if (tipo != QEvent::KeyPress && tipo != QEvent::KeyRelease && tipo != QEvent::ShortcutOverride)
        return false;
    if (tipo == QEvent::ShortcutOverride && std::exchange(passaScorciatoia_, false))
        return false;
    // While older keys wait, a newer one waits behind them.
    if (evento == inConsegna_)
        return false;
    if (!trattiene() && trattenuti_.empty())
        return consegnaSubito(oggetto, evento);
    if (tipo == QEvent::ShortcutOverride) {
        evento->accept(); // no shortcut yet: the key itself follows, and is asked again at its delivery
        return true;
    }
    std::unique_ptr<QKeyEvent> copia(static_cast<QKeyEvent*>(evento->clone()));
    trattenuti_.push_back({oggetto, std::move(copia)});
    evento->accept();
    chiediConsegna();
    return true;
}

/// A key on its way from window to control is under delivery until it is there: what it sets off may let
/// events through and find keys to hold, and its own next step must not be taken for one of them.
bool PompaQt::consegnaSubito(QObject* oggetto, QEvent* evento) {
    if (!oggetto->isWindowType() || evento->type() == QEvent::ShortcutOverride)
        return false;
    const QEvent* esterno = std::exchange(inConsegna_, evento);
    QCoreApplication::sendEvent(oggetto, evento);
    inConsegna_ = esterno;
    return true;
}

void PompaQt::chiediConsegna() {
    if (trattenuti_.empty() || consegnaChiesta_ || trattiene())
        return;
    consegnaChiesta_ = true;
    QCoreApplication::postEvent(this, new QEvent(kConsegna));
}

bool PompaQt::event(QEvent* evento) {
    if (evento->type() != kConsegna)
        return QObject::event(evento);
    consegnaChiesta_ = false;
    if (trattiene() || trattenuti_.empty())
        return true;
    const Tasto tasto = std::move(trattenuti_.front());
    trattenuti_.pop_front();
    // Asked for before this one is delivered: it may open a loop of its own, and the next ones belong into
    // that.
    chiediConsegna();
    consegna(tasto);
    return true;
}

void PompaQt::consegna(const Tasto& tasto) {
    QObject* destinatario = destinatarioAttuale(tasto.destinatario);
    if (!destinatario)
        return;
    QKeyEvent& e = *tasto.evento;
    if (e.type() == QEvent::KeyPress && destinatario->isWindowType()) {
        QObject* fuoco = static_cast<QWindow*>(destinatario)->focusObject();
        passaScorciatoia_ = true;
        const bool scorciatoia = qt_sendShortcutOverrideEvent(
            fuoco ? fuoco : destinatario, static_cast<ulong>(e.timestamp()), e.key(), e.modifiers(), e.text(),
            e.isAutoRepeat(), static_cast<ushort>(e.count()));
        passaScorciatoia_ = false;
        if (scorciatoia)
            return;
    }
    const QEvent* esterno = std::exchange(inConsegna_, &e);
    QCoreApplication::sendEvent(destinatario, &e);
    inConsegna_ = esterno;
}

} // namespace lumigrafo
