#pragma once

#include "data/jet/pagine.h"

#include <string>
#include <vector>

namespace lumigrafo::prova {

/// A table's rows as `mdb-export -H -b hex -T "%Y-%m-%d %H:%M:%S"` prints them. Throws Guasto.
[[nodiscard]] std::string esporta(jet::Pagine& pagine, const std::string& tabella);

/// What mdb-export itself prints; nothing where it isn't installed or fails.
[[nodiscard]] std::string mdbExport(const std::string& file, const std::string& tabella);

/// The lines of either, sorted: mdb-export prints moved rows where they lie.
[[nodiscard]] std::vector<std::string> righeOrdinate(const std::string& testo);

} // namespace lumigrafo::prova
