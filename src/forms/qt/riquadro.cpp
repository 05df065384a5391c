#include "forms/qt/riquadro.h"

#include "platform/qt/aspetto.h"

#include <QLinearGradient>
#include <QPainter>

namespace lumigrafo {

namespace {

const QColor kFilo(255, 255, 255, 40);

} // namespace

void RiquadroWidget::mostra(const Controllo& c, const Resa& resa) {
    // What lies behind a panel over the whole window needn't be painted.
    setAttribute(Qt::WA_OpaquePaintEvent, c.BackColor() && copreIlPadre());
    if (sfondo_ == c.BackColor() && raggio_ == resa.raggio)
        return;
    sfondo_ = c.BackColor();
    raggio_ = resa.raggio;
    update();
}

void RiquadroWidget::paintEvent(QPaintEvent*) {
    if (!sfondo_)
        return;
    QPainter p(this);
    riempi(p, aspetto::colore(*sfondo_), raggio_);
    if (!dynamic_cast<const CorniceWidget*>(parentWidget()) || copreIlPadre())
        return;
    p.setPen(kFilo);
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), raggio_, raggio_);
}

void CorniceWidget::mostra(const Controllo& c, const Resa& resa) {
    if (alto_ == c.Sfumatura1() && basso_ == c.Sfumatura2() && raggio_ == resa.raggio)
        return;
    alto_ = c.Sfumatura1();
    basso_ = c.Sfumatura2();
    raggio_ = resa.raggio;
    update();
}

void CorniceWidget::paintEvent(QPaintEvent*) {
    QPainter p(this);
    QLinearGradient sfumatura(0, 0, 0, height());
    sfumatura.setColorAt(0, aspetto::colore(alto_));
    sfumatura.setColorAt(1, aspetto::colore(basso_));
    riempi(p, sfumatura, raggio_);
}

void LineaWidget::mostra(const Controllo& c, const Resa&) {
    if (tinta_ == c.ForeColor())
        return;
    tinta_ = c.ForeColor();
    update();
}

void LineaWidget::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), aspetto::colore(tinta_));
}

} // namespace lumigrafo
