#include "forms/qt/etichetta.h"

#include "platform/qt/aspetto.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace lumigrafo {

void EtichettaWidget::mostra(const Controllo& c, const Resa& resa) {
    const Descrizione& disegno = c.disegno();
    const bool testo =
        testo_.imposta(QString::fromStdString(c.Caption()), resa.carattere, disegno.allineamento);
    int altezza = altezza_;
    if (disegno.inAlto)
        altezza = qRound(QFontMetrics(resa.carattere).height() * resa.scala.inPiuInAltezza());
    const int margine = resa.scala.larghezza(disegno.margine);
    if (!testo && tinta_ == c.ForeColor() && sfondo_ == c.BackColor() && raggio_ == resa.raggio &&
        altezza_ == altezza && margine_ == margine)
        return;
    tinta_ = c.ForeColor();
    sfondo_ = c.BackColor();
    raggio_ = resa.raggio;
    altezza_ = altezza;
    margine_ = margine;
    update();
}

QRect EtichettaWidget::area() const {
    const int margine = sfondo_ ? std::max(raggio_, margine_) : margine_;
    QRect dentro = rect().adjusted(margine, 0, -margine, 0);
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
