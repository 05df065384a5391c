#pragma once

#include "data/jet/pagina_dati.h"

#include <string_view>

namespace lumigrafo::jet {

/// Changes the rows of one data page, inside Pagine::cambia. Rows stay packed, a row's slot stays its own.
class ModificaDati {
public:
    /// Locks the page. Throws Guasto 3049 where one of its slots is out of place.
    ModificaDati(Pagine& pagine, std::uint32_t numero);

    /// Makes an empty page of a new one.
    static void inizia(Pagina& pagina, std::uint32_t proprietario);

    [[nodiscard]] std::size_t liberi() const { return pagina_.u16(PaginaDati::kLiberi); }
    [[nodiscard]] bool entra(std::size_t lunga) const;
    /// Room for a row must be there. Returns its slot.
    std::uint8_t aggiungi(std::string_view riga, std::uint16_t segni);
    /// Whether the slot's bytes may be replaced by so many.
    [[nodiscard]] bool entraAlPosto(unsigned slot, std::size_t lunga) const;
    void sostituisci(unsigned slot, std::string_view riga, std::uint16_t segni);
    /// Leaves a slot of length 0.
    void elimina(unsigned slot) { sostituisci(slot, {}, Slot::kEliminata); }

private:
    [[nodiscard]] std::size_t inizio(unsigned slot) const;
    [[nodiscard]] std::size_t fine(unsigned slot) const;
    [[nodiscard]] unsigned quanti() const { return pagina_.u16(PaginaDati::kQuanti); }
    void parola(unsigned slot, std::size_t valore) { pagina_.scrivi16(PaginaDati::kSlot + 2 * slot, valore); }

    Pagina& pagina_;
};

} // namespace lumigrafo::jet
