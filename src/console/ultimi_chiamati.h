#pragma once

#include "console/stato.h"
#include "settings/ini/ini.h"

#include <cstdint>
#include <string>

namespace lumigrafo {

/// Puts a called number, in its grid form, at the head of the list of its quadrant (0..2) in `ultimi`, and
/// drops the oldest. Repeats aren't looked for. A file that can't be written leaves the old list, and nothing
/// is said.
void AggiornaUltimiChiamati(StatoConsole& stato, const FileIni& ultimi, std::int16_t index,
                            const std::string& testo);

} // namespace lumigrafo
