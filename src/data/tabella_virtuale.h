#pragma once

#include "data/jet/catalogo.h"
#include "data/jet/tabella.h"
#include "data/regole_access.h"

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

struct sqlite3;

namespace lumigrafo {

/// An archive of Access behind SQLite: each of its tables is a virtual one, whose row identifiers are the
/// rows' addresses. The transactions and savepoints of the connection are those of the archive's pages.
class TabelleVirtuali {
public:
    explicit TabelleVirtuali(jet::Pagine& pagine) : pagine_(pagine) {}
    TabelleVirtuali(const TabelleVirtuali&) = delete;
    TabelleVirtuali& operator=(const TabelleVirtuali&) = delete;

    /// Makes the tables of that connection, which must end before this object. Those that can't be used are
    /// left out. Throws Guasto.
    void crea(sqlite3* db);

    [[nodiscard]] jet::Pagine& pagine() { return pagine_; }
    /// Where a table is defined. Throws Guasto 3078.
    [[nodiscard]] std::uint32_t definizioneDi(const std::string& tabella) const;
    /// Why a table was left out; nothing where there is none of that name.
    [[nodiscard]] std::optional<Guasto> inservibile(const std::string& tabella) const;
    /// What a table's design asks of its rows. Properties that can't be read ask nothing.
    [[nodiscard]] RegoleAccess regoleDi(const jet::Definizione& definizione);
    void segna(int punto);
    void dimentica(int punto);
    void tornaA(int punto);
    void fineTransazione() { segni_.clear(); }

    [[nodiscard]] static std::int64_t chiave(jet::Posizione p) { return p.puntatore(); }
    [[nodiscard]] static jet::Posizione posizione(std::int64_t chiave);

private:
    void lasciaFuori(const jet::VoceCatalogo& voce, const Guasto& guasto);

    jet::Pagine& pagine_;
    sqlite3* db_ = nullptr;
    std::vector<jet::VoceCatalogo> voci_;
    std::vector<std::pair<std::string, Guasto>> inservibili_;
    std::map<int, jet::Pagine::Segno> segni_; ///< by the number of SQLite's savepoint
};

} // namespace lumigrafo
