#include "platform/qt/avvisi_qt.h"

#include "platform/qt/finestra_avviso.h"

#include <QApplication>
#include <QMainWindow>

#include <algorithm>

namespace lumigrafo {

namespace {

/// What the box stands over. Between two boxes no window may be active yet: without an owner the second one
/// could come up on the public's monitor.
QWidget* finestraAttiva() {
    if (QWidget* modale = QApplication::activeModalWidget())
        return modale;
    if (QWidget* attiva = QApplication::activeWindow())
        return attiva;
    const auto finestre = QApplication::topLevelWidgets();
    const auto principale = std::find_if(finestre.begin(), finestre.end(), [](const QWidget* w) {
        return qobject_cast<const QMainWindow*>(w) && w->isVisible();
    });
    return principale == finestre.end() ? nullptr : *principale;
}

} // namespace

Risposta AvvisiQt::chiedi(const Avviso& avviso) {
    FinestraAvviso finestra(avviso, finestraAttiva());
    return finestra.chiedi();
}

} // namespace lumigrafo
