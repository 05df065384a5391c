#pragma once

#include "forms/descrizione.h"

namespace lumigrafo {

/// The colour picker: its fields bear the indices that the window holds, which are in no order.
extern const Layout kLayoutColore;

} // namespace lumigrafo
