#pragma once

#include "forms/qt/testo_adattato.h"
#include "forms/qt/vista.h"

#include <QAbstractButton>

namespace lumigrafo {

/// A check box with its text to the right of it; a touch anywhere on it ticks.
class SpuntaWidget final : public QAbstractButton, public Vista {
public:
    SpuntaWidget(const Controllo& controllo, QWidget* padre);
    void mostra(const Controllo& controllo, const Resa& resa) override;

protected:
    void paintEvent(QPaintEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    TestoAdattato testo_;
    Colore tinta_;
    int lato_ = 0;   ///< of the box, pixels
    int raggio_ = 0; ///< of corners at the window's size; its own are half as round
};

} // namespace lumigrafo
