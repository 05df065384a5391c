#pragma once

#include "data/jet/definizione.h"
#include "data/jet/scansione.h"

#include <string>
#include <vector>

struct sqlite3_index_info;

namespace lumigrafo {

/// The ORDER BY of a statement on a table of the archive, taken over from SQLite, whose own sorting copies
/// whole rows and goes to the disk where they are many.
namespace ordine_access {

/// The order that SQLite asks for, in a form that `ordina` reads; empty where it asks for none, or for one by
/// columns that it compares otherwise than by their keys.
[[nodiscard]] std::string scegli(const jet::Definizione& definizione, const sqlite3_index_info& info);

/// Puts the rows in that order; equal ones stay as they are.
void ordina(const jet::Definizione& definizione, const char* ordine, std::vector<jet::RigaTrovata>& righe);

} // namespace ordine_access
} // namespace lumigrafo
