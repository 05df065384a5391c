#pragma once

#include "boards/sagoma.h"

namespace lumigrafo {

/// Shows the template of the board, modal, until the search for the second monitor is over.
void mostraSagoma(const ServiziSagoma& servizi, const Rettangolo& console);

} // namespace lumigrafo
