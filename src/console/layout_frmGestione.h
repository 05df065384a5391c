#pragma once

#include "forms/descrizione.h"

namespace lumigrafo {

/// The operator's console. Its measures are those of a maximised window on a 16:9 screen.
extern const Layout kLayout_frmGestione;

/// Width of a grid's columns at the design, and its row height and font size.
inline constexpr Twip kLarghezzaColonna = 1920;
inline constexpr Twip kAltezzaRiga = 800;

} // namespace lumigrafo
