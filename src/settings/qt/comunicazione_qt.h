#pragma once

#include "settings/comunicazione.h"

namespace lumigrafo {

/// Shows the operator's message window, modal; returns when its own button has closed it.
void mostraComunicazione(const ServiziComunicazione& servizi);

} // namespace lumigrafo
