#pragma once

#include "data/jet/definizione.h"
#include "data/jet/pagina_dati.h"

#include <vector>

namespace lumigrafo::jet {

struct RigaTrovata {
    Posizione posizione; ///< the row's address, for as long as it lives
    RigaGrezza riga;
};

/// All rows of a table in the order in which they lie. Each keeps its page in memory, so the rows stay what
/// they were read as. Throws Guasto 3049.
[[nodiscard]] std::vector<RigaTrovata> scorri(Pagine& pagine, const Definizione& definizione);

} // namespace lumigrafo::jet
