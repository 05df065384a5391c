#pragma once

#include "forms/descrizione.h"

namespace lumigrafo {

/// The timed message and the start window.
extern const Layout kLayoutMessaggio;
extern const Layout kLayoutSplash;

} // namespace lumigrafo
