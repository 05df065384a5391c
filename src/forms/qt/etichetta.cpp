#include "forms/qt/etichetta.h"

#include "platform/qt/aspetto.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace lumigrafo {

namespace {

/// The smallest and the largest type of a label that shows fonts, in parts of its height.
constexpr double kCampioneMinimo = 0.3, kCampioneMassimo = 0.8;

/// Between these by the font's size, so that each size fits and a larger one is seen to be larger.
QFont campione(const Controllo& c, const Resa& resa) {
    const Corsa& corsa = c.disegno().corsa;
    const double parte = (c.FontSize() - corsa.minimo) / (corsa.massimo - corsa.minimo);
    const double altezza =
        kCampioneMinimo + (kCampioneMassimo - kCampioneMinimo) * std::clamp(parte, 0.0, 1.0);
    QFont carattere = resa.carattere;
    carattere.setPixelSize(std::max(1, qRound(resa.scala.altezza(c.Height()) * altezza)));
    return carattere;
}

} // namespace

void EtichettaWidget::mostra(const Controllo& c, const Resa& resa) {
    const Descrizione& disegno = c.disegno();
    const bool testo =
        testo_.imposta(QString::fromStdString(c.Caption()),
                       disegno.corsa.minimo > 0 ? campione(c, resa) : resa.carattere, disegno.allineamento);
    int altezza = altezza_;
    if (disegno.inAlto)
        altezza = qRound(QFontMetrics(resa.carattere).height() * resa.scala.inPiuInAltezza());
    const int margine = resa.scala.larghezza(disegno.margine);
    if (!testo && tinta_ == c.ForeColor() && sfondo_ == c.BackColor() && raggio_ == resa.raggio &&
        altezza_ == altezza && margine_ == margine)
        return;
    testo_.sottolinea(disegno.scelta);
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
