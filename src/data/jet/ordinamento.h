#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace lumigrafo::jet {

/// The sort order of texts whose keys this engine can make, as a column's definition has it: General, as
/// Access 2000 to 2007 has it for western languages.
inline constexpr std::uint32_t kOrdineGenerale = 0x0409;

/// The bytes by which texts compare in that order: case doesn't count, an accent counts less than a letter,
/// trailing blanks are dropped. Throws Guasto 3421 for a character outside Windows-1252.
[[nodiscard]] std::string chiaveTesto(std::u16string_view testo);

/// The same for any UTF-8 text: characters that have no place in that order come last, by their codes. Only
/// for comparing; no index has such keys.
[[nodiscard]] std::string chiaveDiConfronto(std::string_view utf8);

/// Compares two UTF-8 texts in that order: below 0, 0, above 0, as their chiaveDiConfronto do.
[[nodiscard]] int confronta(std::string_view a, std::string_view b);

} // namespace lumigrafo::jet
