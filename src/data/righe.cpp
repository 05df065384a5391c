#include "data/righe.h"

#include <algorithm>
#include <sqlite3.h>
#include <string_view>

namespace lumigrafo {

void Righe::azzera(std::size_t colonne, bool conChiave) {
    colonne_ = colonne;
    conChiave_ = conChiave;
    celle_.clear();
    chiavi_.clear();
    testi_.clear();
    eliminate_ = 0;
}

void Righe::leggi(Cella& c, sqlite3_value* v) {
    switch (sqlite3_value_type(v)) {
    case SQLITE_INTEGER:
        c.intero = sqlite3_value_int64(v);
        c.tipo = Cella::Tipo::Intero;
        break;
    case SQLITE_FLOAT:
        c.doppio = sqlite3_value_double(v);
        c.tipo = Cella::Tipo::Doppio;
        break;
    case SQLITE_NULL:
        c.tipo = Cella::Tipo::Nullo;
        break;
    default: { // a text, or bytes taken as such
        const auto* t = static_cast<const char*>(sqlite3_value_blob(v));
        c.tipo = Cella::Tipo::Testo;
        c.inizio = testi_.size();
        c.lunghezza = static_cast<std::uint32_t>(sqlite3_value_bytes(v));
        testi_.append(t ? t : "", c.lunghezza);
    }
    }
}

std::span<Cella> Righe::nuovaRiga() {
    const std::size_t prima = celle_.size();
    celle_.resize(prima + colonne_);
    return std::span(celle_).subspan(prima);
}

void Righe::accoda(sqlite3_stmt* stmt) {
    (void)nuovaRiga();
    chiavi_.push_back(conChiave_ ? sqlite3_column_int64(stmt, static_cast<int>(colonne_)) : 0);
    sostituisci(chiavi_.size() - 1, stmt);
}

void Righe::accodaIntera(sqlite3_stmt* stmt) {
    const auto* byte = static_cast<const char*>(sqlite3_column_blob(stmt, 0));
    const auto lunga = static_cast<std::size_t>(sqlite3_column_bytes(stmt, 0));
    RigaIntera::scomponi({byte, lunga}, nuovaRiga(), testi_);
    chiavi_.push_back(sqlite3_column_int64(stmt, 1));
}

void Righe::sostituisci(std::size_t riga, sqlite3_stmt* stmt) {
    Cella* cella = celle_.data() + riga * colonne_;
    for (int i = 0, n = static_cast<int>(colonne_); i < n; ++i)
        leggi(*cella++, sqlite3_column_value(stmt, i));
}

void Righe::elimina(std::size_t riga) {
    chiavi_[riga] = kEliminata;
    ++eliminate_;
}

std::optional<std::size_t> Righe::prima(std::vector<std::int64_t> chiavi) const {
    std::sort(chiavi.begin(), chiavi.end());
    const auto trovata = std::find_if(chiavi_.begin(), chiavi_.end(), [&](std::int64_t k) {
        return k != kEliminata && std::binary_search(chiavi.begin(), chiavi.end(), k);
    });
    if (trovata == chiavi_.end())
        return std::nullopt;
    return static_cast<std::size_t>(trovata - chiavi_.begin());
}

std::vector<Valore> Righe::valori(std::size_t riga) const {
    std::vector<Valore> v;
    for (std::size_t i = 0; i < colonne_; ++i)
        v.push_back(valore(riga, i));
    return v;
}

} // namespace lumigrafo
