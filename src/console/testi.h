#pragma once

#include "data/ordine.h"

#include <string>
#include <string_view>

namespace lumigrafo {

/// A number as a grid cell and the list of called numbers hold it: letter, two blanks, number; without a
/// letter the bare number. The number is the value at the head of its text: leading zeros go, and a value
/// beyond 32767 throws Guasto 6.
[[nodiscard]] std::string FormattaNumero(std::string_view sigla, std::string_view numero);

/// The same as a board slot and the console's label hold it: one blank.
[[nodiscard]] std::string testoVideata(std::string_view sigla, std::string_view numero);

} // namespace lumigrafo
