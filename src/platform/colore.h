#pragma once

#include <cstdint>

namespace lumigrafo {

/// A colour as the settings hold it: a 32-bit signed integer with red in the low byte, then green, then blue.
struct Colore {
    std::int32_t v = 0;

    constexpr Colore() = default;
    constexpr explicit Colore(std::int32_t valore) : v(valore) {}
    friend constexpr bool operator==(Colore, Colore) = default;

    [[nodiscard]] constexpr int rosso() const { return v & 0xFF; }
    [[nodiscard]] constexpr int verde() const { return (v >> 8) & 0xFF; }
    [[nodiscard]] constexpr int blu() const { return (v >> 16) & 0xFF; }
};

/// Components 0..255.
[[nodiscard]] constexpr Colore rgb(int rosso, int verde, int blu) {
    return Colore(rosso | (verde << 8) | (blu << 16));
}

inline constexpr Colore kNero = rgb(0, 0, 0);
inline constexpr Colore kBianco = rgb(255, 255, 255);
inline constexpr Colore kGiallo = Colore(65535);

} // namespace lumigrafo
