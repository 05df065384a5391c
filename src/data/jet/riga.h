#pragma once

#include "data/jet/definizione.h"

#include <optional>
#include <string>
#include <vector>

namespace lumigrafo::jet {

/// A row's fields as their bytes lie in the file, by the column's place; nothing for a null. A Yes/No field
/// has no bytes: it is True where something stands, and never null.
using Campi = std::vector<std::optional<std::string>>;

/// Takes a row apart, field by field, without copying.
class Riga {
public:
    static constexpr std::size_t kTesta = 2; ///< bytes before the first field: the number of columns

    /// `definizione` must outlive it. Throws Guasto 3049 for a row that is cut short.
    Riga(const Definizione& definizione, Vista byte);

    /// Yes/No: False counts as null here.
    [[nodiscard]] bool nulla(const Colonna& colonna) const;
    /// The bytes of a field that isn't null, at least as many as its type has. Throws Guasto 3049.
    [[nodiscard]] Vista valore(const Colonna& colonna) const;
    [[nodiscard]] Campi campi() const;

private:
    [[nodiscard]] Vista variabile(const Colonna& colonna) const;

    const Definizione& definizione_;
    Vista byte_;
    unsigned colonne_ = 0, variabili_ = 0;
    std::size_t maschera_ = 0; ///< where the null mask begins
};

// In the header, since a reader of a whole table calls them for each field of each row.
inline bool Riga::nulla(const Colonna& c) const {
    return c.numero >= colonne_ || !(byte_.u8(maschera_ + c.numero / 8) >> (c.numero % 8) & 1) ||
           (c.variabile() && c.indiceVariabile >= variabili_);
}

inline Vista Riga::variabile(const Colonna& c) const {
    const std::size_t tavola = maschera_ - 4; // offset of value 0; those of the next ones stand below it
    const std::size_t inizio = byte_.u16(tavola - 2 * std::size_t{c.indiceVariabile});
    const std::size_t fine = byte_.u16(tavola - 2 * std::size_t{c.indiceVariabile} - 2);
    if (inizio > fine || inizio < kTesta || fine > tavola - 2 * std::size_t{variabili_})
        throw danno(byte_.pagina(), "un campo è fuori dalla sua riga");
    return byte_.brano(inizio, fine - inizio);
}

inline Vista Riga::valore(const Colonna& c) const {
    const std::size_t minimo = byteDi(c.tipo);
    if (c.fissa)
        return byte_.brano(kTesta + c.postoFisso, minimo ? minimo : c.lunghezza);
    const Vista v = variabile(c);
    if (v.lunga() < minimo)
        throw danno(byte_.pagina(), "un campo è tronco");
    return v;
}

/// The bytes of a row with those fields. Throws Guasto 3047 where it is too long for a page.
[[nodiscard]] std::string componiRiga(const Definizione& definizione, const Campi& campi);

} // namespace lumigrafo::jet
