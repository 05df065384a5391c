#pragma once

#include <string>

namespace lumigrafo::archivio {

/// The 13 digits of a receipt's barcode: "599", the letter's character code or "00" for none, the category in
/// two digits (0: none), the number in five, and the EAN-13 check digit.
[[nodiscard]] std::string codiceScontrino(const std::string& sigla, int categoria, int numero);

} // namespace lumigrafo::archivio
