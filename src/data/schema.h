#pragma once

#include "data/formato.h"

#include <filesystem>

namespace lumigrafo {

/// Makes a new archive with every table, no order, and the cash desks' counter at 0. It never touches a file
/// that is there already. Throws Guasto 3204 where the file exists, 3044 where the folder is missing, 3051
/// where it can't be written.
void creaArchivio(const std::filesystem::path& file, Formato formato = Formato::Sqlite);

/// Deletes an archive and the files that its engine keeps beside it; one that failed to be made.
void eliminaArchivio(const std::filesystem::path& file) noexcept;

} // namespace lumigrafo
