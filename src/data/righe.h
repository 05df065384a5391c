#pragma once

#include "data/riga_intera.h"
#include "data/valore.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3_stmt;
struct sqlite3_value;

namespace lumigrafo {

/// The rows of a record set as they were read, in one block of memory, each with its key in the table. A
/// deleted row keeps its place.
class Righe {
public:
    /// Empty, with the memory kept. `colonne`: values in a row. `conChiave`: the statements read give the
    /// row's key behind them.
    void azzera(std::size_t colonne, bool conChiave);
    /// Appends the row that the statement stands on.
    void accoda(sqlite3_stmt* stmt);
    /// The same from a statement that gives each row as a RigaIntera, and behind it the key.
    void accodaIntera(sqlite3_stmt* stmt);
    /// Puts the row that the statement stands on in the place of an older reading.
    void sostituisci(std::size_t riga, sqlite3_stmt* stmt);
    void elimina(std::size_t riga);

    [[nodiscard]] std::size_t quante() const { return chiavi_.size(); }
    [[nodiscard]] std::size_t vive() const { return chiavi_.size() - eliminate_; }
    [[nodiscard]] bool eliminata(std::size_t riga) const { return chiavi_[riga] == kEliminata; }
    [[nodiscard]] std::int64_t chiave(std::size_t riga) const { return chiavi_[riga]; }
    /// The first row, by position, whose key is among these.
    [[nodiscard]] std::optional<std::size_t> prima(std::vector<std::int64_t> chiavi) const;
    [[nodiscard]] Valore valore(std::size_t riga, std::size_t colonna) const;
    [[nodiscard]] std::vector<Valore> valori(std::size_t riga) const;

private:
    static constexpr std::int64_t kEliminata = INT64_MIN;

    [[nodiscard]] std::span<Cella> nuovaRiga();
    void leggi(Cella& cella, sqlite3_value* valore);

    std::size_t colonne_ = 0;
    bool conChiave_ = false;
    std::vector<Cella> celle_;
    std::vector<std::int64_t> chiavi_;
    std::string testi_;
    std::size_t eliminate_ = 0;
};

// In the header, since a reader of a whole table calls it for each field of each row.
inline Valore Righe::valore(std::size_t riga, std::size_t colonna) const {
    const Cella& c = celle_[riga * colonne_ + colonna];
    switch (c.tipo) {
    case Cella::Tipo::Intero:
        return c.intero;
    case Cella::Tipo::Doppio:
        return c.doppio;
    case Cella::Tipo::Testo:
        return std::string_view(testi_).substr(c.inizio, c.lunghezza);
    case Cella::Tipo::Nullo:
        break;
    }
    return {};
}

} // namespace lumigrafo
