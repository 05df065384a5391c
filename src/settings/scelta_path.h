#pragma once

#include "platform/scelta_cartella.h"

#include <string>

namespace lumigrafo {

/// Lets the operator choose a folder under a title. Returns its path, or `predefinito` where nothing was
/// chosen. The chooser stands over the window that is active.
[[nodiscard]] std::string ScegliCartella(SceltaCartella& finestra, const std::string& titolo, int opzioni,
                                         int radice, const std::string& predefinito);

} // namespace lumigrafo
