#pragma once

#include "platform/orologio.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace lumigrafo::archivio {

/// The whole of lumigrafo-archivio. Returns the exit code: 0 done, 1 failed, 2 called wrongly.
[[nodiscard]] int esegui(const std::vector<std::string>& argomenti, const Orologio& orologio,
                         std::ostream& out, std::ostream& err);

} // namespace lumigrafo::archivio
