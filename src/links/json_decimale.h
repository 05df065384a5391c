#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lumigrafo {

/// An exact decimal number: a 96-bit integer divided by a power of ten from 0 to 28, so every number of 28
/// digits, and some of 29, is held without loss, up to 79228162514264337593543950335.
class Decimale {
public:
    static constexpr int kScalaMassima = 28;

    Decimale() = default;
    explicit Decimale(std::int32_t valore);

    /// Reads an optional minus, digits with at most one point, and an optional exponent. Digits beyond the
    /// 28th place, or the 96th bit, are rounded, a half to the even neighbour. Nothing if the text is no such
    /// number or the number is too large.
    [[nodiscard]] static std::optional<Decimale> daTesto(std::string_view testo);

    /// Without an exponent, and without zeros behind the last digit that counts.
    [[nodiscard]] std::string aTesto() const;

    friend bool operator==(const Decimale&, const Decimale&) = default;

private:
    friend class LettoreDecimale;
    using Parti = std::array<std::uint32_t, 3>; // the least first

    void riduci();

    Parti parti_{};
    std::uint8_t scala_ = 0;
    bool negativo_ = false;
};

/// Money: ten-thousandths in 64 bits.
struct Valuta {
    std::int64_t diecimillesimi = 0;
    [[nodiscard]] std::string aTesto() const;
    friend bool operator==(const Valuta&, const Valuta&) = default;
};

} // namespace lumigrafo
