#pragma once

struct sqlite3_module;

namespace lumigrafo {

/// The comparison of texts in an Access archive, as SQLite knows it.
inline constexpr const char* kConfrontoAccess = "GENERALE";

/// The functions behind a virtual table over a table of an Access archive; its context is a TabelleVirtuali.
[[nodiscard]] const sqlite3_module* moduloAccess();

} // namespace lumigrafo
