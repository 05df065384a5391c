#pragma once

#include "forms/descrizione.h"

namespace lumigrafo {

/// The settings dialog. The on-screen keyboard lies in `picTastiera`, over the foot of the window: every text
/// box stands above it.
extern const Layout kLayoutImposta;

} // namespace lumigrafo
