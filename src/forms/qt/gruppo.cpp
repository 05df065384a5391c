#include "forms/qt/gruppo.h"

#include "platform/qt/aspetto.h"

#include <QFontMetrics>
#include <QPainter>

namespace lumigrafo {

void GruppoWidget::mostra(const Controllo& c, const Resa& resa) {
    titolo_.imposta(QString::fromStdString(c.Caption()), resa.carattere, c.disegno().allineamento);
    tinta_ = c.ForeColor();
    sfondo_ = c.BackColor();
    raggio_ = resa.raggio;
    update();
}

void GruppoWidget::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const double filo = filoCon(raggio_);
    p.setPen(QPen(aspetto::kBordo, filo));
    p.setBrush(sfondo_ ? aspetto::colore(*sfondo_) : aspetto::kCarta);
    p.drawRoundedRect(QRectF(rect()).adjusted(filo / 2, filo / 2, -filo / 2, -filo / 2), raggio_, raggio_);
    const int riga = QFontMetrics(titolo_.carattere()).height();
    titolo_.disegna(p, QRect(riga * 2 / 3, riga / 3, width() - riga, riga), aspetto::colore(tinta_));
}

} // namespace lumigrafo
