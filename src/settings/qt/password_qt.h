#pragma once

#include "settings/password.h"

namespace lumigrafo {

/// Shows the keypad, modal. True if the expected code was confirmed.
bool chiediPassword(const ServiziPassword& servizi, DomandaPassword& domanda);

} // namespace lumigrafo
