#pragma once

#include <sqlite3.h>

/// A virtual table that gets a new row can't tell a column that isn't given from one that is to be null, and
/// only the former takes its default. So a null that a parameter brings carries a mark; to all others it is a
/// plain null.
namespace lumigrafo {

inline constexpr char kMarcaNullo[] = "nullo";

/// SQLite's result code. Parameters count from 1.
inline int legaNullo(sqlite3_stmt* istruzione, int parametro) {
    return sqlite3_bind_pointer(istruzione, parametro, const_cast<char*>(kMarcaNullo), kMarcaNullo, nullptr);
}

[[nodiscard]] inline bool nulloVoluto(sqlite3_value* valore) {
    return sqlite3_value_pointer(valore, kMarcaNullo) != nullptr;
}

} // namespace lumigrafo
