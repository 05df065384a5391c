#pragma once

#include <filesystem>

namespace lumigrafo {

/// Fills an empty file with an archive of Access that has every table. Throws Guasto.
void riempiAccess(const std::filesystem::path& file);

} // namespace lumigrafo
