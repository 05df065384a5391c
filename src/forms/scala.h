#pragma once

#include "forms/descrizione.h"

#include <algorithm>

namespace lumigrafo {

/// A rectangle on the screen, in pixels.
struct RettangoloPixel {
    int x = 0, y = 0, larghezza = 0, altezza = 0;
    friend constexpr bool operator==(const RettangoloPixel&, const RettangoloPixel&) = default;
};

/// How a window's controls follow its size: positions and sizes with each axis, type with the smaller of the
/// two. It always starts from the design measures, so that any number of resizes and back ends where it
/// began.
class Scala {
public:
    /// `larghezza` and `altezza`: client size now, in pixels. The layout's design size must be above 0.
    Scala(const Layout& layout, int larghezza, int altezza);

    /// Neighbouring edges stay neighbours: each edge is rounded by itself.
    [[nodiscard]] RettangoloPixel rettangolo(const Rettangolo& rett) const;
    /// Height of the type in pixels, 1 to 10000, for a size in points at the design.
    [[nodiscard]] int carattere(double punti) const;
    [[nodiscard]] int larghezza(Twip t) const;
    [[nodiscard]] int altezza(Twip t) const;
    /// What heights grew by over what type grew by: 1 or more.
    [[nodiscard]] double inPiuInAltezza() const { return std::max(1.0, y_ / x_); }
    /// A width not yet rounded, for those that are summed up.
    [[nodiscard]] double larghezzaEsatta(Twip t) const { return t.v * x_; }

private:
    double x_, y_;
};

} // namespace lumigrafo
