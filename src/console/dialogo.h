#pragma once

#include "console/contesto.h"
#include "settings/processo.h"

#include <utility>

namespace lumigrafo {

/// The partner of `FermaPrimoPiano`, called when a dialog has closed: a named hook that does nothing.
inline void RiprendiPrimoPiano() {}

/// Shows a modal dialog: the companion program that keeps windows in front is stopped before it.
template <typename Dialogo>
void dialogo(ContestoConsole& c, Dialogo&& mostra) {
    FermaPrimoPiano(c.porte.processi);
    std::forward<Dialogo>(mostra)();
    RiprendiPrimoPiano();
}

} // namespace lumigrafo
