#include "forms/qt/cursore.h"

#include <QSignalBlocker>
#include <QWheelEvent>

namespace lumigrafo {

namespace {

/// Height of groove and knob at the design.
constexpr Twip kSolco = 120;
constexpr Twip kPomello = 480;

constexpr auto kFoglio =
    "QSlider::groove:horizontal { height: %1px; border-radius: %2px; background: #d9e0e6; }"
    "QSlider::sub-page:horizontal { height: %1px; border-radius: %2px; background: #2f6da8; }"
    "QSlider::handle:horizontal { width: %3px; margin: -%4px 0; border-radius: %5px;"
    " background: #ffffff; border: %6px solid #2f6da8; }"
    "QSlider::handle:horizontal:focus { background: #d3e4f4; border: %7px solid #1f4f80; }"
    "QSlider::sub-page:horizontal:disabled { background: #becad5; }"
    "QSlider::handle:horizontal:disabled { border-color: #becad5; }";

} // namespace

CursoreWidget::CursoreWidget(const Controllo& c, QWidget* padre) : QSlider(Qt::Horizontal, padre) {
    const Corsa& corsa = c.disegno().corsa;
    setRange(corsa.minimo, corsa.massimo);
    setSingleStep(corsa.piccolo);
    setPageStep(corsa.grande);
}

void CursoreWidget::mostra(const Controllo& c, const Resa& resa) {
    const QSignalBlocker zitto(this);
    setValue(c.Value());
    const int solco = resa.scala.altezza(kSolco);
    const int oltre = (resa.scala.altezza(kPomello) - solco) / 2;
    const int pomello = solco + 2 * oltre; // a radius beyond its half would leave it square
    const int filo = 2 * qRound(filoCon(resa.raggio));
    const QString foglio = QString::fromLatin1(kFoglio)
                               .arg(solco)
                               .arg(solco / 2)
                               .arg(pomello - 2 * filo) // its edge is drawn outside
                               .arg(oltre)
                               .arg(pomello / 2)
                               .arg(filo)
                               .arg(filo + filo / 2);
    if (styleSheet() != foglio)
        setStyleSheet(foglio);
}

/// A wheel that turns over it on its way elsewhere must not change a setting.
void CursoreWidget::wheelEvent(QWheelEvent* evento) {
    evento->ignore();
}

} // namespace lumigrafo
