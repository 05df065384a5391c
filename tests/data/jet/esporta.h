#pragma once

#include "data/dao.h"
#include "data/jet/pagine.h"

#include <string>
#include <vector>

namespace lumigrafo::prova {

/// A table's rows as `mdb-export -H -b hex -T "%Y-%m-%d %H:%M:%S"` prints them. Throws Guasto.
[[nodiscard]] std::string esporta(jet::Pagine& pagine, const std::string& tabella);

/// What mdb-export itself prints; nothing where it isn't installed or fails.
[[nodiscard]] std::string mdbExport(const std::string& file, const std::string& tabella);

/// The rows of a record set.
[[nodiscard]] std::vector<std::vector<Valore>> valori(Database& db, const std::string& sorgente);
/// The statement that reads a whole table by the names of its columns.
[[nodiscard]] std::string perNome(Database& db, const std::string& tabella);

/// The lines of either, sorted: mdb-export prints moved rows where they lie.
[[nodiscard]] std::vector<std::string> righeOrdinate(const std::string& testo);

} // namespace lumigrafo::prova
