#pragma once

#include <filesystem>

namespace lumigrafo {

enum class Formato { Sqlite, Access };

/// What kind of archive a file is, told by its first bytes, whatever its name. Access stands for all of that
/// family, also those files that the engine refuses. Throws Guasto 3024 (no such file), 3044 (no such
/// folder), 3051 (not to be opened), 3343 (no archive).
[[nodiscard]] Formato formatoDi(const std::filesystem::path& file);

} // namespace lumigrafo
