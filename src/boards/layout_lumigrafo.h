#pragma once

#include "forms/descrizione.h"

namespace lumigrafo {

/// The standard board: three departments side by side.
extern const Layout kLayoutLumigrafo;

} // namespace lumigrafo
