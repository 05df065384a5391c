#include "forms/qt/battuta.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QWidget>

namespace lumigrafo {

void batti(Qt::Key tasto, const QString& testo) {
    const QPointer<QWidget> chi = QApplication::focusWidget();
    for (const auto tipo : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent evento(tipo, tasto, Qt::NoModifier, testo);
        if (chi) // the press may have closed its window
            QCoreApplication::sendEvent(chi, &evento);
    }
}

} // namespace lumigrafo
