#pragma once

#include "forms/qt/vista.h"

#include <QComboBox>

namespace lumigrafo {

/// A drop-down list, with items as high as a finger needs.
class ComboWidget final : public QComboBox, public Vista {
public:
    ComboWidget(const Controllo& controllo, QWidget* padre);
    void mostra(const Controllo& controllo, const Resa& resa) override;

protected:
    void paintEvent(QPaintEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void wheelEvent(QWheelEvent* evento) override;

private:
    int raggio_ = 0;
};

} // namespace lumigrafo
