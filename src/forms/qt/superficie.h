#pragma once

#include "forms/qt/vista.h"

#include <QWidget>

#include <functional>

namespace lumigrafo {

/// What labels, boxes and pictures have in common: they let the pointer through to their container, unless
/// they take clicks themselves. A click is a press and a release on the same control.
class Superficie : public QWidget, public Vista {
public:
    Superficie(const Controllo& controllo, QWidget* padre);
    void alClic(std::function<void()> azione) { clic_ = std::move(azione); }
    void alClicDestro(std::function<void()> azione) { clicDestro_ = std::move(azione); }

protected:
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    /// True where it covers its container: then its corners aren't rounded.
    [[nodiscard]] bool copreIlPadre() const;
    /// Fills the whole widget with round corners where it doesn't cover its container.
    void riempi(QPainter& pennello, const QBrush& tinta, int raggio) const;

private:
    std::function<void()> clic_, clicDestro_;
    bool cliccabile_;
    Qt::MouseButton premuto_ = Qt::NoButton;
};

} // namespace lumigrafo
