#pragma once

#include "platform/processi.h"

#include <string>

namespace lumigrafo {

/// Stops every process of this name; where none runs, every one of the name in lower case. None is the normal
/// case.
void TerminaProcesso(Processi& processi, const std::string& nome);

/// Stops the companion program that keeps a window in the foreground: before each modal dialog, which it
/// would cover, and at each exit.
void FermaPrimoPiano(Processi& processi);

} // namespace lumigrafo
