#pragma once

#include "boards/finestra_videata.h"

namespace lumigrafo {

/// The boards' windows on the screen: frameless, at home on a second monitor, never taking the keyboard by
/// being shown. Needs a QApplication and, for their pictures, the resources.
[[nodiscard]] FabbricaFinestre fabbricaFinestreQt();

} // namespace lumigrafo
