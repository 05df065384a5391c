#pragma once

#include "data/jet/definizione.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace lumigrafo::jet {

/// A field's value: null, a whole number, a number, a text (UTF-8) or bytes. Yes/No is -1 or 0, Currency a
/// number, Date the days since 1899-12-30, Decimal and GUID texts.
struct Byte {
    std::string byte;
    friend bool operator==(const Byte&, const Byte&) = default;
};
using Dato = std::variant<std::monostate, std::int64_t, double, std::string, Byte>;

/// Whether values of that type are whole numbers.
[[nodiscard]] constexpr bool numeroIntero(Tipo tipo) {
    return tipo == Tipo::Byte || tipo == Tipo::Intero || tipo == Tipo::Lungo;
}
/// The value of such a field. Throws Guasto 3049.
[[nodiscard]] inline std::int64_t leggiIntero(Tipo tipo, Vista byte) {
    if (tipo == Tipo::Byte)
        return byte.u8(0);
    return tipo == Tipo::Intero ? static_cast<std::int16_t>(byte.u16(0))
                                : static_cast<std::int32_t>(byte.u32(0));
}

/// The value behind a field's bytes, for all types but long values and Yes/No. Throws Guasto 3049.
[[nodiscard]] Dato leggiDato(const Colonna& colonna, Vista byte);

/// A value as the column's field holds it; nothing for a null and for a Yes/No of 0. Throws Guasto 3421 for
/// what the type can't take, 3163 for what is too long, 3027 for long values, which this engine doesn't
/// write.
[[nodiscard]] std::optional<std::string> scriviDato(const Colonna& colonna, const Dato& dato);

/// Days since 1899-12-30 as a number that runs on through midnight: before that day the file counts the time
/// of day forward from a negative date.
[[nodiscard]] double giorniContinui(double data);

} // namespace lumigrafo::jet
