#include "platform/qt/icona_avviso.h"

#include "platform/qt/aspetto.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace lumigrafo {

namespace {

constexpr QColor kAllarme{192, 24, 24};
constexpr QColor kPrudenza{240, 173, 38};
/// The side of the square that the signs are drawn in.
constexpr double kLato = 64;

QPen tratto(const QColor& colore, double spessore) {
    return {colore, spessore, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

void tondo(QPainter& p, const QColor& colore) {
    p.setPen(Qt::NoPen);
    p.setBrush(colore);
    p.drawEllipse(QPointF(32, 32), 29, 29);
    p.setBrush(Qt::NoBrush);
    p.setPen(tratto(aspetto::kCarta, 6));
}

void critica(QPainter& p) {
    tondo(p, kAllarme);
    p.drawLine(QPointF(22, 22), QPointF(42, 42));
    p.drawLine(QPointF(42, 22), QPointF(22, 42));
}

void domanda(QPainter& p) {
    tondo(p, aspetto::kAccento);
    QPainterPath gancio(QPointF(23, 25));
    gancio.cubicTo(23, 12, 42, 12, 42, 25);
    gancio.cubicTo(42, 33, 32, 32, 32, 39);
    p.drawPath(gancio);
    p.drawPoint(QPointF(32, 48));
}

void informazione(QPainter& p) {
    tondo(p, aspetto::kAccento);
    p.drawPoint(QPointF(32, 18));
    p.drawLine(QPointF(32, 30), QPointF(32, 47));
}

void esclamazione(QPainter& p) {
    p.setPen(tratto(kPrudenza, 8));
    p.setBrush(kPrudenza);
    p.drawPolygon(QPolygonF{{32, 8}, {58, 54}, {6, 54}});
    p.setPen(tratto(aspetto::kInchiostro, 6));
    p.drawLine(QPointF(32, 22), QPointF(32, 37));
    p.drawPoint(QPointF(32, 47));
}

} // namespace

void disegnaIcona(QPainter& pennello, Icona icona, const QRect& area) {
    pennello.save();
    pennello.setRenderHint(QPainter::Antialiasing);
    pennello.translate(area.topLeft());
    const double scala = std::min(area.width(), area.height()) / kLato;
    pennello.scale(scala, scala);
    switch (icona) {
    case Icona::Critica:
        critica(pennello);
        break;
    case Icona::Domanda:
        domanda(pennello);
        break;
    case Icona::Esclamazione:
        esclamazione(pennello);
        break;
    case Icona::Informazione:
        informazione(pennello);
        break;
    case Icona::Nessuna:
        break;
    }
    pennello.restore();
}

} // namespace lumigrafo
