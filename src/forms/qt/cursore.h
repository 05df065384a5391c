#pragma once

#include "forms/qt/vista.h"

#include <QSlider>

namespace lumigrafo {

/// A slider with a knob for fingers. A touch beside the knob moves it by the large step, an arrow key by the
/// small one.
class CursoreWidget final : public QSlider, public Vista {
public:
    CursoreWidget(const Controllo& controllo, QWidget* padre);
    void mostra(const Controllo& controllo, const Resa& resa) override;

protected:
    void wheelEvent(QWheelEvent* evento) override;
};

} // namespace lumigrafo
