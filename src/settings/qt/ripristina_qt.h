#pragma once

#include "settings/ripristina.h"

namespace lumigrafo {

/// Shows the restore dialog, modal; returns when a number was restored or the operator leaves.
void mostraRipristina(const ServiziRipristina& servizi);

} // namespace lumigrafo
