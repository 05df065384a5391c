#pragma once

#include "forms/descrizione.h"

namespace lumigrafo {

/// The operator's message.
extern const Layout kLayoutComunicazione;

} // namespace lumigrafo
