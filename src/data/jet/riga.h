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

/// The bytes of a row with those fields. Throws Guasto 3047 where it is too long for a page.
[[nodiscard]] std::string componiRiga(const Definizione& definizione, const Campi& campi);

} // namespace lumigrafo::jet
