#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace lumigrafo::json {

/// The text of a number taken apart. The views look into the text.
struct Cifre {
    bool negativo = false;
    std::string_view prima; ///< digits before the point, leading zeros left out
    std::string_view dopo;  ///< digits behind the point
    /// Power of ten; one that is too long to count stands at the limit.
    std::int64_t esponente = 0;
    static constexpr std::int64_t kEsponenteMassimo = 1'000'000'000;

    /// Nothing if the text isn't an optional minus, at least one digit with at most one point, and an
    /// optional exponent with at least one digit.
    [[nodiscard]] static std::optional<Cifre> di(std::string_view testo);

    /// True if the number, unless 0, is less than 1.
    [[nodiscard]] bool minoreDiUno() const;
};

} // namespace lumigrafo::json
