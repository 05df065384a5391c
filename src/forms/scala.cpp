#include "forms/scala.h"

#include <algorithm>
#include <cmath>

namespace lumigrafo {

namespace {

/// A point is 20 twips.
constexpr double kTwipPerPunto = 20;
/// Beyond any window: type of a million points, as a slip in the settings makes it, would never be drawn to
/// its end.
constexpr double kPixelMassimi = 10000;

int arrotondato(double v) {
    return static_cast<int>(std::lround(v));
}

} // namespace

Scala::Scala(const Layout& layout, int larghezza, int altezza)
    : x_(larghezza / layout.larghezza.v), y_(altezza / layout.altezza.v) {}

RettangoloPixel Scala::rettangolo(const Rettangolo& r) const {
    const int x = arrotondato(r.left.v * x_);
    const int y = arrotondato(r.top.v * y_);
    return {x, y, arrotondato((r.left + r.width).v * x_) - x, arrotondato((r.top + r.height).v * y_) - y};
}

int Scala::carattere(double punti) const {
    return arrotondato(std::clamp(punti * kTwipPerPunto * std::min(x_, y_), 1.0, kPixelMassimi));
}

int Scala::larghezza(Twip t) const {
    return arrotondato(t.v * x_);
}

int Scala::altezza(Twip t) const {
    return arrotondato(t.v * y_);
}

} // namespace lumigrafo
