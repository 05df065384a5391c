#include "forms/qt/simboli_tastiera.h"

#include <QPolygonF>
#include <QTransform>

#include <utility>

namespace lumigrafo {

namespace {

using Punti = QList<QPointF>;

/// Strokes side by side; the first one closed where asked.
QPainterPath tratti(std::initializer_list<Punti> linee, bool chiusa = false) {
    QPainterPath p;
    for (const Punti& punti : linee) {
        p.addPolygon(QPolygonF(punti));
        if (std::exchange(chiusa, false))
            p.closeSubpath();
    }
    return p;
}

QPainterPath freccia(double gradi) {
    return QTransform().rotate(gradi).map(
        tratti({{{-0.35, 0}, {0.35, 0}}, {{0.08, -0.27}, {0.35, 0}, {0.08, 0.27}}}));
}

} // namespace

QPainterPath simbolo(AzioneTasto azione) {
    switch (azione) {
    case AzioneTasto::Destra:
        return freccia(0);
    case AzioneTasto::Giu:
        return freccia(90);
    case AzioneTasto::Sinistra:
        return freccia(180);
    case AzioneTasto::Su:
        return freccia(270);
    case AzioneTasto::Cancella:
        return tratti({{{-0.55, 0}, {-0.2, -0.32}, {0.5, -0.32}, {0.5, 0.32}, {-0.2, 0.32}},
                       {{0.02, -0.13}, {0.28, 0.13}},
                       {{0.28, -0.13}, {0.02, 0.13}}},
                      true);
    case AzioneTasto::Invio:
        return tratti(
            {{{0.45, -0.35}, {0.45, 0.05}, {-0.45, 0.05}}, {{-0.18, -0.22}, {-0.45, 0.05}, {-0.18, 0.32}}});
    case AzioneTasto::Maiuscole:
        return tratti({{{0, -0.42},
                        {0.42, 0.04},
                        {0.18, 0.04},
                        {0.18, 0.4},
                        {-0.18, 0.4},
                        {-0.18, 0.04},
                        {-0.42, 0.04}}},
                      true);
    default:
        return {};
    }
}

} // namespace lumigrafo
