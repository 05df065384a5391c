#include "forms/qt/combo.h"

#include "forms/qt/voci.h"
#include "platform/qt/aspetto.h"

#include <QKeyEvent>
#include <QListView>
#include <QPainter>
#include <QSignalBlocker>
#include <QWheelEvent>

namespace lumigrafo {

ComboWidget::ComboWidget(const Controllo&, QWidget* padre) : QComboBox(padre) {
    setView(new QListView(this)); // the style's own takes no height of items
    setMaxVisibleItems(12);
}

void ComboWidget::mostra(const Controllo& c, const Resa& resa) {
    const QSignalBlocker zitto(this);
    if (const QStringList voci = testiDi(c); count() != voci.size() || testiDi(*this) != voci) {
        clear();
        addItems(voci);
    }
    setCurrentIndex(c.ListIndex());
    raggio_ = resa.raggio;
    if (font() != resa.carattere) {
        setFont(resa.carattere);
        view()->setFont(resa.carattere);
        view()->setStyleSheet(foglioVoci(resa));
    }
    update();
}

void ComboWidget::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const double filo = filoCon(raggio_) * (hasFocus() ? 2 : 1);
    p.setBrush(isEnabled() ? aspetto::kCarta : aspetto::kFinestra);
    p.setPen(QPen(hasFocus() ? aspetto::kAccento : aspetto::kBordo, filo));
    p.drawRoundedRect(QRectF(rect()).adjusted(filo / 2, filo / 2, -filo / 2, -filo / 2), raggio_, raggio_);

    const int lato = fontMetrics().height();
    const QRect testo = rect().adjusted(lato / 2, 0, -2 * lato, 0);
    p.setPen(isEnabled() ? aspetto::kInchiostro : aspetto::kBordo);
    p.drawText(testo, Qt::AlignVCenter | Qt::AlignLeft,
               fontMetrics().elidedText(currentText(), Qt::ElideRight, testo.width()));

    const QPointF punta(width() - lato, height() / 2.0 + lato * 0.15);
    p.setPen(QPen(p.pen().color(), lato * 0.12, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawPolyline(
        QPolygonF{punta - QPointF(lato * 0.3, lato * 0.3), punta, punta + QPointF(lato * 0.3, -lato * 0.3)});
}

/// Qt would look for an item that begins with what is typed: a scanned code must not change a setting. The
/// space bar opens the list, the arrows choose.
void ComboWidget::keyPressEvent(QKeyEvent* evento) {
    const QString testo = evento->text();
    if (!testo.isEmpty() && testo.at(0).isPrint() && !testo.at(0).isSpace())
        evento->ignore();
    else
        QComboBox::keyPressEvent(evento);
}

/// A wheel that turns over it on its way elsewhere must not change a setting.
void ComboWidget::wheelEvent(QWheelEvent* evento) {
    evento->ignore();
}

} // namespace lumigrafo
