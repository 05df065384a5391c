#pragma once

#include "forms/qt/superficie.h"

#include <QBrush>

namespace lumigrafo {

/// A plain box, transparent without a back colour. On a shaded frame it gets a faint edge, since its colour
/// is then one of the frame's own.
class RiquadroWidget : public Superficie {
public:
    using Superficie::Superficie;
    void mostra(const Controllo& controllo, const Resa& resa) override;

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    std::optional<Colore> sfondo_;
    int raggio_ = 0;
};

/// A box shaded from its first colour at the top to its second at the bottom.
class CorniceWidget final : public Superficie {
public:
    using Superficie::Superficie;
    void mostra(const Controllo& controllo, const Resa& resa) override;

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    Colore alto_, basso_;
    int raggio_ = 0;
};

/// A rule, in the control's text colour; never thinner than a pixel.
class LineaWidget final : public Superficie {
public:
    using Superficie::Superficie;
    void mostra(const Controllo& controllo, const Resa& resa) override;

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    Colore tinta_;
};

} // namespace lumigrafo
