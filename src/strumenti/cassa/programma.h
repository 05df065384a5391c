#pragma once

#include "strumenti/cassa/richiesta.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace lumigrafo::cassa {

/// The whole of lumigrafo-cassa. Returns the exit code: 0 answered, 1 failed, 2 called wrongly. With --ogni
/// it goes on until `attesa` says no.
[[nodiscard]] int esegui(const std::vector<std::string>& parole, Collegamento& collegamento,
                         const Attesa& attesa, std::ostream& out, std::ostream& err);

} // namespace lumigrafo::cassa
