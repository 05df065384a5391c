#include "forms/qt/lista.h"

#include "forms/qt/voci.h"

#include <QKeyEvent>
#include <QScroller>
#include <QSignalBlocker>

namespace lumigrafo {

ListaWidget::ListaWidget(const Controllo&, QWidget* padre) : QListWidget(padre) {
    setVerticalScrollMode(ScrollPerPixel);
    QScroller::grabGesture(viewport(), QScroller::TouchGesture);
}

void ListaWidget::mostra(const Controllo& c, const Resa& resa) {
    const QSignalBlocker zitto(this);
    if (const QStringList voci = testiDi(c); testiDi(*this) != voci) {
        clear();
        addItems(voci);
    }
    if (font() != resa.carattere) {
        setFont(resa.carattere);
        setStyleSheet(foglioVoci(resa));
    }
    setCurrentRow(c.ListIndex());
}

void ListaWidget::keyPressEvent(QKeyEvent* evento) {
    const bool invio = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
    if (invio && currentItem())
        Q_EMIT itemClicked(currentItem());
    else
        QListWidget::keyPressEvent(evento);
}

} // namespace lumigrafo
