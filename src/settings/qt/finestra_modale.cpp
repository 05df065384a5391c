#include "settings/qt/finestra_modale.h"

#include "forms/qt/finestra.h"
#include "platform/qt/aspetto.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QScreen>
#include <QStyle>
#include <QWindow>

#include <algorithm>

namespace lumigrafo {

namespace {

/// In the middle of the active window's screen, as large on a large screen as on a small one.
void disponi(Finestra& finestra, const QWidget* attiva) {
    const QRect lavoro = (attiva ? attiva->screen() : QApplication::primaryScreen())->availableGeometry();
    const double scala = aspetto::ingrandimento(lavoro.size());
    const bool nuda = finestra.windowFlags().testFlag(Qt::FramelessWindowHint);
    const int titolo = nuda ? 0 : finestra.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const QRect libero = lavoro.adjusted(0, titolo, 0, 0);
    QRect posto(QPoint(), (finestra.size() * scala).boundedTo(libero.size()));
    posto.moveCenter(libero.center());
    finestra.setGeometry(posto);
}

/// The window that a dialog stands over. Right after another dialog has closed the system has not told yet
/// which window is the active one: then it is what that dialog stood over.
QWidget* sotto(const QPointer<QWidget>& ultima) {
    QWidget* attiva = QApplication::activeWindow();
    return attiva || !ultima || !ultima->isVisible() ? attiva : ultima.data();
}

/// Escape presses `cmdAnnulla`; a window without it closes as from its title bar. It counts where nothing
/// inside the window has a use for it: an open list closes, and no more.
class Rinuncia final : public QObject {
public:
    explicit Rinuncia(Finestra& finestra) : QObject(&finestra), finestra_(finestra) {
        finestra.installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* evento) override {
        const auto* tasto = evento->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(evento) : nullptr;
        if (!tasto || tasto->key() != Qt::Key_Escape)
            return false;
        if (tasto->isAutoRepeat()) // or it would go on to the window behind
            return true;
        if (auto* annulla = qobject_cast<QAbstractButton*>(finestra_.widget("cmdAnnulla")))
            annulla->click(); // nothing while it is disabled
        else
            finestra_.close();
        return true;
    }

private:
    Finestra& finestra_;
};

} // namespace

void FinestraModale::esegui(Finestra& finestra, const std::function<void()>& mostrata) {
    vista_ = &finestra;
    static QPointer<QWidget> ultima;
    const QPointer<QWidget> attiva = sotto(ultima);
    disponi(finestra, attiva);
    finestra.setWindowModality(Qt::ApplicationModal);
    finestra.winId(); // makes the system's window, so that it can be tied to the one it stands over
    finestra.windowHandle()->setTransientParent(attiva ? attiva->windowHandle() : nullptr);
    finestra.allaChiusura([this] {
        if (chiudibile_)
            ciclo_.quit();
        return chiudibile_;
    });
    if (chiudibile_)
        new Rinuncia(finestra); // goes with the window
    finestra.setFocus();        // no control has it: a scanner's keys must not press a button
    finestra.show();
    finestra.raise();
    finestra.activateWindow();
    if (mostrata)
        mostrata();
    ciclo_.exec();
    ultima = attiva;
    // Two that close at once, a notice and the dialog under it, would leave the system with no window to give
    // the keys to: a scanner would type into nothing.
    if (attiva && attiva->isVisible())
        attiva->activateWindow();
}

void FinestraModale::fine() {
    vista_->hide();
    ciclo_.quit();
}

} // namespace lumigrafo
