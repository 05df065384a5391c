#pragma once

#include "data/jet/riga.h"

#include <optional>
#include <string>

namespace lumigrafo::jet {

/// Whether keys of this index can be made. Where not, its table can be read but not changed.
[[nodiscard]] bool chiaviPossibili(const Definizione& definizione, const Indice& indice);

/// The part of a key that one column gives; `byte` as the field holds them, nothing for null (Yes/No: for
/// False). Throws Guasto 3421 for a text that has no key, 3049 for a field cut short.
[[nodiscard]] std::string parteDiChiave(const Colonna& colonna, bool crescente,
                                        const std::optional<std::string>& byte);

/// The key of a row in an index, or nothing where the index leaves the row out. Throws as parteDiChiave.
[[nodiscard]] std::optional<std::string> chiaveDi(const Definizione& definizione, const Indice& indice,
                                                  const Campi& campi);

/// True if every column of the index is null in that row; a Yes/No never is.
[[nodiscard]] bool tuttaNulla(const Definizione& definizione, const Indice& indice, const Campi& campi);

} // namespace lumigrafo::jet
