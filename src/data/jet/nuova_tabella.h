#pragma once

#include "data/jet/definizione.h"

#include <cstdint>
#include <string>
#include <vector>

namespace lumigrafo::jet {

/// A column to be made. Fixed lengths follow from the type; a text's is given in characters.
struct ColonnaNuova {
    std::string nome;
    Tipo tipo;
    std::uint16_t caratteri = 0;
    bool contatore = false;
    std::string predefinito = {}; ///< expression of a new row's value
    bool richiesta = false;
};

struct IndiceNuovo {
    std::string nome;
    std::vector<std::size_t> colonne; ///< places in `colonne`, all ascending
    bool unico = false;
    bool primaria = false; ///< unique, and takes no null
    bool richiesto = false;
    bool ignoraNulli = false;
};

struct TabellaNuova {
    std::string nome;
    std::vector<ColonnaNuova> colonne;
    std::vector<IndiceNuovo> indici;
    bool sistema = false;
};

/// Where the parts of a new table lie.
struct PostiTabella {
    std::uint32_t definizione = 0;
    std::uint32_t mappe = 0;     ///< page of the maps' rows
    std::uint8_t primaMappa = 0; ///< the owned pages' one; the others follow
    std::vector<std::uint32_t> radici;
};

/// Rows of maps that a table needs: two of its own, two for each long column, one for each index.
[[nodiscard]] std::size_t mappeDi(const TabellaNuova& tabella);
/// The page of the definition. Throws Guasto 3047 for a table that one page can't define.
[[nodiscard]] Pagina componiDefinizione(const TabellaNuova& tabella, const PostiTabella& posti);

/// Makes a table in an open archive, with its entries in the catalog: a change of the transaction. Throws
/// Guasto.
void creaTabella(Pagine& pagine, const TabellaNuova& tabella);

} // namespace lumigrafo::jet
