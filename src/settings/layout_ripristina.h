#pragma once

#include "forms/descrizione.h"

namespace lumigrafo {

/// The restore dialog.
extern const Layout kLayoutRipristina;

} // namespace lumigrafo
