#pragma once

#include "data/jet/vista.h"

#include <string>
#include <string_view>

namespace lumigrafo::jet {

/// A text as a field holds it: plain UTF-16, or compressed behind FF FE to one byte for each character up to
/// U+00FF. An odd last byte is left out.
[[nodiscard]] std::u16string decomprimi(Vista byte);
/// The same as UTF-8.
[[nodiscard]] std::string leggiTesto(Vista byte);
/// UTF-8 as a field holds it; `compresso`: the column lets texts be compressed.
[[nodiscard]] std::string scriviTesto(std::string_view utf8, bool compresso);

[[nodiscard]] std::u16string aUtf16(std::string_view utf8);
[[nodiscard]] std::string aUtf8(std::u16string_view testo);

} // namespace lumigrafo::jet
