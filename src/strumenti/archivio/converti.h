#pragma once

#include "data/formato.h"

#include <filesystem>
#include <iosfwd>

namespace lumigrafo::archivio {

/// Makes a new archive of that format, and its folder where that is missing, and copies into it the rows of every table that both have, column by
/// column of the same name; tells `out` what it copied and what not. Throws Guasto, and then leaves no new
/// archive behind.
void converti(const std::filesystem::path& da, const std::filesystem::path& a, Formato formato,
              std::ostream& out);

} // namespace lumigrafo::archivio
