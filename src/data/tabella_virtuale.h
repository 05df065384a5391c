#pragma once

#include "data/jet/catalogo.h"
#include "data/jet/tabella.h"

#include <map>
#include <string>

struct sqlite3;

namespace lumigrafo {

/// An archive of Access behind SQLite: each of its tables is a virtual one, whose row identifiers are the
/// rows' addresses. The transactions and savepoints of the connection are those of the archive's pages.
class TabelleVirtuali {
public:
    explicit TabelleVirtuali(jet::Pagine& pagine) : pagine_(pagine) {}
    TabelleVirtuali(const TabelleVirtuali&) = delete;
    TabelleVirtuali& operator=(const TabelleVirtuali&) = delete;

    /// Makes the tables of that connection, which must end before this object. Throws Guasto.
    void crea(sqlite3* db);

    [[nodiscard]] jet::Pagine& pagine() { return pagine_; }
    /// Where a table is defined. Throws Guasto 3078.
    [[nodiscard]] std::uint32_t definizioneDi(const std::string& tabella) const;
    /// While it lives, a change waits for other stations a fraction of the whole wait only, unless it is part
    /// of a longer transaction: its statement is repeated as a whole then, and until that holds nothing.
    [[nodiscard]] jet::Pagine::AttesaBreve attesaDiUnPasso();
    void segna(int punto);
    void dimentica(int punto);
    void tornaA(int punto);
    void fineTransazione() { segni_.clear(); }

    [[nodiscard]] static std::int64_t chiave(jet::Posizione p) { return p.puntatore(); }
    [[nodiscard]] static jet::Posizione posizione(std::int64_t chiave);

private:
    jet::Pagine& pagine_;
    sqlite3* db_ = nullptr;
    std::vector<jet::VoceCatalogo> voci_;
    std::map<int, jet::Pagine::Segno> segni_; ///< by the number of SQLite's savepoint
};

} // namespace lumigrafo
