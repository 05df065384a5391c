#pragma once

#include <cmath>
#include <compare>

namespace lumigrafo {

/// A length or position in twips (1/1440 inch), the unit of every layout and of the stored window geometry.
/// Fractions occur: a widened grid is 8752.5 twips wide.
struct Twip {
    double v = 0;

    constexpr Twip() = default;
    constexpr Twip(double valore) : v(valore) {} // NOLINT: layout tables are written as plain numbers
    friend constexpr auto operator<=>(const Twip&, const Twip&) = default;
    friend constexpr Twip operator+(Twip a, Twip b) { return {a.v + b.v}; }
    friend constexpr Twip operator-(Twip a, Twip b) { return {a.v - b.v}; }
    friend constexpr Twip operator*(Twip a, double f) { return {a.v * f}; }
    friend constexpr Twip operator/(Twip a, double f) { return {a.v / f}; }
    constexpr Twip& operator+=(Twip b) {
        v += b.v;
        return *this;
    }
};

/// Twips of one pixel: fixed, whatever the screen's density.
inline constexpr double kTwipPerPixel = 15;

/// A length or position on a screen, in device-independent pixels.
struct Pixel {
    int v = 0;

    constexpr Pixel() = default;
    constexpr explicit Pixel(int valore) : v(valore) {}
    friend constexpr auto operator<=>(const Pixel&, const Pixel&) = default;
};

[[nodiscard]] inline Pixel aPixel(Twip t) {
    return Pixel(static_cast<int>(std::lround(t.v / kTwipPerPixel)));
}
[[nodiscard]] constexpr Twip aTwip(Pixel p) {
    return {p.v * kTwipPerPixel};
}

/// A rectangle in twips: left, top, width, height.
struct Rettangolo {
    Twip left, top, width, height;
    friend constexpr bool operator==(const Rettangolo&, const Rettangolo&) = default;
};

} // namespace lumigrafo
