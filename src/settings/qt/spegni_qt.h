#pragma once

#include "settings/spegni.h"

namespace lumigrafo {

/// Shows the leaving dialog, modal; returns when the operator goes back.
void mostraSpegni(Processi& processi, Alimentazione& alimentazione, Uscita& uscita);

} // namespace lumigrafo
