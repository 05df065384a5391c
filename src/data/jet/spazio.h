#pragma once

#include "data/jet/mappa.h"

#include <cstdint>

namespace lumigrafo::jet {

/// Inside Pagine::cambia. Takes a page for use, all zeros: a free one, or one more at the file's end. The
/// caller puts it into its owner's map.
[[nodiscard]] std::uint32_t allocaPagina(Pagine& pagine);

/// Inside Pagine::cambia. Gives a page back, which its owner's map no longer has.
void liberaPagina(Pagine& pagine, std::uint32_t numero);

} // namespace lumigrafo::jet
