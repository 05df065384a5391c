#include "forms/qt/spunta.h"

#include "platform/qt/aspetto.h"

#include <QKeyEvent>
#include <QPainter>
#include <QSignalBlocker>

#include <algorithm>

namespace lumigrafo {

namespace {

/// Side of the box at the design: 24 pixels.
constexpr Twip kLato = 360;

} // namespace

SpuntaWidget::SpuntaWidget(const Controllo&, QWidget* padre) : QAbstractButton(padre) {
    setCheckable(true);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
}

void SpuntaWidget::mostra(const Controllo& c, const Resa& resa) {
    const QSignalBlocker zitto(this);
    setChecked(c.Value() != 0);
    testo_.imposta(QString::fromStdString(c.Caption()), resa.carattere, Allineamento::Sinistra);
    setText(QString(testo_.testo()).replace(QLatin1Char('&'), QLatin1String("&&")));
    setShortcut(scorciatoia(c)); // a new text drops the old one
    testo_.sottolinea(c.disegno().scelta);
    tinta_ = c.ForeColor();
    lato_ = std::min(resa.scala.altezza(kLato), resa.scala.larghezza(kLato));
    raggio_ = resa.raggio;
    update();
}

void SpuntaWidget::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const double bordo = filoCon(raggio_) * 2;
    const QRectF casella(bordo, (height() - lato_) / 2.0, lato_, lato_);
    if (hasFocus()) { // round the words too: a ticked box has the accent's colour already
        const double filo = filoCon(raggio_) * 2;
        p.setPen(QPen(aspetto::kFuoco, filo));
        p.drawRoundedRect(QRectF(rect()).adjusted(filo / 2, filo / 2, -filo / 2, -filo / 2), raggio_,
                          raggio_);
    }
    const bool acceso = isEnabled() && isChecked();
    const bool vivo = hasFocus() || isDown() || acceso;
    p.setPen(QPen(vivo ? aspetto::kAccento : aspetto::kBordo, filoCon(raggio_) * 1.5));
    p.setBrush(acceso ? aspetto::kAccento : underMouse() ? aspetto::kFinestra : aspetto::kCarta);
    p.drawRoundedRect(casella, raggio_ / 2.0, raggio_ / 2.0);
    if (isChecked()) {
        p.setPen(QPen(isEnabled() ? aspetto::kCarta : aspetto::kBordo, lato_ / 8.0, Qt::SolidLine,
                      Qt::RoundCap, Qt::RoundJoin));
        const auto punto = [&](double x, double y) {
            return casella.topLeft() + QPointF(x * lato_, y * lato_);
        };
        p.drawPolyline(QPolygonF{punto(0.22, 0.52), punto(0.43, 0.73), punto(0.80, 0.30)});
    }
    const int testo = lato_ + lato_ / 2;
    testo_.disegna(p, rect().adjusted(testo, 0, 0, 0),
                   isEnabled() ? aspetto::colore(tinta_) : aspetto::kBordo);
}

/// As with a button: the Return that ends a scanner's code must not tick it.
void SpuntaWidget::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter)
        evento->ignore();
    else
        QAbstractButton::keyPressEvent(evento);
}

} // namespace lumigrafo
