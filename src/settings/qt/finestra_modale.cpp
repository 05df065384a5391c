#include "settings/qt/finestra_modale.h"

#include "forms/qt/finestra.h"
#include "platform/qt/aspetto.h"

#include <QApplication>
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

} // namespace

void FinestraModale::esegui(Finestra& finestra, const std::function<void()>& mostrata) {
    vista_ = &finestra;
    const QWidget* attiva = QApplication::activeWindow();
    disponi(finestra, attiva);
    finestra.setWindowModality(Qt::ApplicationModal);
    finestra.winId(); // makes the system's window, so that it can be tied to the one it stands over
    finestra.windowHandle()->setTransientParent(attiva ? attiva->windowHandle() : nullptr);
    finestra.allaChiusura([this] {
        if (chiudibile_)
            ciclo_.quit();
        return chiudibile_;
    });
    finestra.setFocus(); // no control has it: a scanner's keys must not press a button
    finestra.show();
    finestra.raise();
    finestra.activateWindow();
    if (mostrata)
        mostrata();
    ciclo_.exec();
}

void FinestraModale::fine() {
    vista_->hide();
    ciclo_.quit();
}

} // namespace lumigrafo
