#pragma once

#include "data/dao.h"

#include <iosfwd>

namespace lumigrafo::archivio {

/// Prints the queue: a line for each order, a column for each category with the pieces still to serve, and
/// the number that the cash desks are serving. Throws Guasto.
void mostraCoda(Database& db, std::ostream& out);

} // namespace lumigrafo::archivio
