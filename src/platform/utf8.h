#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Texts in memory are UTF-8; these two take them apart and put them together, a character at a time.
namespace lumigrafo {

inline constexpr char32_t kCarattereIgnoto = 0xFFFD;

/// The character (code point) at `posizione`, which must lie inside the text; steps behind it. A byte that
/// begins no well-formed character is stepped over alone and gives kCarattereIgnoto.
[[nodiscard]] char32_t prossimoCarattere(std::string_view utf8, std::size_t& posizione);

/// Appends a character; what is no Unicode scalar value becomes kCarattereIgnoto.
void accodaCarattere(std::string& utf8, char32_t carattere);

} // namespace lumigrafo
