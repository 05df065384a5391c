#include "forms/qt/etichetta.h"

#include "platform/qt/aspetto.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace lumigrafo {

void EtichettaWidget::mostra(const Controllo& c, const Resa& resa) {
    const bool testo =
        testo_.imposta(QString::fromStdString(c.Caption()), resa.carattere, c.disegno().allineamento);
    if (!testo && tinta_ == c.ForeColor() && sfondo_ == c.BackColor() && raggio_ == resa.raggio)
        return;
    tinta_ = c.ForeColor();
    sfondo_ = c.BackColor();
    raggio_ = resa.raggio;
    if (c.disegno().inAlto)
        altezza_ = QFontMetrics(resa.carattere).height();
    update();
}

QRect EtichettaWidget::area() const {
    QRect dentro = sfondo_ ? rect().adjusted(raggio_, 0, -raggio_, 0) : rect();
    dentro.setHeight(std::min(dentro.height(), altezza_));
    const QWidget* padre = parentWidget();
    return padre ? dentro.intersected({-pos(), padre->size()}) : dentro;
}

void EtichettaWidget::paintEvent(QPaintEvent*) {
    QPainter p(this);
    if (sfondo_)
        riempi(p, aspetto::colore(*sfondo_), raggio_);
    testo_.disegna(p, area(), isEnabled() ? aspetto::colore(tinta_) : aspetto::kBordo);
}

} // namespace lumigrafo
