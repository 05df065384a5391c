#pragma once

#include "data/jet/tabella.h"
#include "data/riga_intera.h"

#include <memory>
#include <sqlite3.h>
#include <vector>

namespace lumigrafo {

using RigheTrovate = std::vector<jet::RigaTrovata>;

/// A virtual table of SQLite's over a table of the archive.
struct TabellaAccess : sqlite3_vtab {
    TabellaAccess(jet::Pagine& pagine, std::uint32_t definizione)
        : sqlite3_vtab{}, tabella(pagine, definizione) {}

    jet::Tabella tabella;
    /// What the latest search found: a statement changes only rows that are still as it read them.
    std::shared_ptr<const RigheTrovate> viste;
};

/// How a search goes: chosen while a statement is prepared, carried out when it runs.
struct Percorso {
    static constexpr int kTutte = 0, kChiave = 1, kIndici = 2;

    /// Fills in SQLite's form for the way that looks through the fewest rows.
    static void scegli(TabellaAccess& t, sqlite3_index_info& info);
    /// Carries it out with the values of the condition, in one state of the archive. `ordine`: as `scegli`
    /// found it, null for none.
    static RigheTrovate cerca(TabellaAccess& t, int numero, const char* ordine,
                              const std::vector<sqlite3_value*>& valori);
};

struct CursoreAccess : sqlite3_vtab_cursor {
    CursoreAccess() : sqlite3_vtab_cursor{} {}

    [[nodiscard]] TabellaAccess& tabella() const { return *static_cast<TabellaAccess*>(pVtab); }
    [[nodiscard]] bool finito() const { return posto >= righe->size(); }
    /// Stands on that row, or behind the last one.
    void vaiA(std::size_t nuovo);
    /// Gives SQLite a field of the row; behind the last one the whole row.
    void colonna(sqlite3_context* contesto, std::size_t i);

    std::shared_ptr<const RigheTrovate> righe = std::make_shared<RigheTrovate>();
    std::size_t posto = 0;
    const jet::Definizione* definizione = nullptr; ///< of the search's state
    std::optional<jet::Riga> riga;
    RigaIntera intera;
};

/// The bytes of a column's field for a value of SQLite's. Throws Guasto as jet::scriviDato.
[[nodiscard]] std::optional<std::string> byteDi(const jet::Colonna& colonna, sqlite3_value* valore);

} // namespace lumigrafo
