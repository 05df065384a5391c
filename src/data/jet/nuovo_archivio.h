#pragma once

#include "data/jet/nuova_tabella.h"

#include <filesystem>

namespace lumigrafo::jet {

/// Fills an empty file with an archive that has Access's own tables and no others. `creazione`: days since
/// 1899-12-30. Throws Guasto.
void nuovoArchivio(const std::filesystem::path& file, double creazione);

} // namespace lumigrafo::jet
