#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace lumigrafo {

/// What a receipt's barcode says.
struct CodiceScontrino {
    std::int16_t categoria = 0; ///< 0: none
    std::string sigla;          ///< one character, or empty
    std::string numero;         ///< decimal without leading zeros; empty where its digits are none, as it
                                ///< stands where it is beyond 16 bits
};

/// Reads a code of 13 digits: the prefix 599, two digits of the letter's character code, two of the category,
/// five of the number, and a check digit that isn't tested. What is no such code gives the message for the
/// operator instead.
[[nodiscard]] std::variant<CodiceScontrino, std::string> leggiCodice(std::string_view testo);

} // namespace lumigrafo
