#include "forms/qt/etichetta.h"

#include "platform/qt/aspetto.h"

#include <QPainter>

namespace lumigrafo {

void EtichettaWidget::mostra(const Controllo& c, const Resa& resa) {
    const bool testo =
        testo_.imposta(QString::fromStdString(c.Caption()), resa.carattere, c.disegno().allineamento);
    if (!testo && tinta_ == c.ForeColor() && sfondo_ == c.BackColor() && raggio_ == resa.raggio)
        return;
    tinta_ = c.ForeColor();
    sfondo_ = c.BackColor();
    raggio_ = resa.raggio;
    update();
}

QRect EtichettaWidget::area() const {
    return sfondo_ ? rect().adjusted(raggio_, 0, -raggio_, 0) : rect();
}

void EtichettaWidget::paintEvent(QPaintEvent*) {
    QPainter p(this);
    if (sfondo_)
        riempi(p, aspetto::colore(*sfondo_), raggio_);
    testo_.disegna(p, area(), isEnabled() ? aspetto::colore(tinta_) : aspetto::kBordo);
}

} // namespace lumigrafo
