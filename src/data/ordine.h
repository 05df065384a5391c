#pragma once

#include <string>
#include <string_view>

namespace lumigrafo {

/// Letter and number of an order.
struct Ordine {
    std::string sigla;  ///< one character, or empty
    std::string numero; ///< trimmed
};
/// Splits a grid cell's text, which mustn't be blank. A text that begins with a digit has no letter.
[[nodiscard]] Ordine dividiCella(std::string_view testo);

} // namespace lumigrafo
