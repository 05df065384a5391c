#pragma once

#include "forms/verifica.h"

#include <array>
#include <cstddef>
#include <string_view>

/// Rows that a board repeats for each of its slots.
namespace lumigrafo {

/// One control of a slot, as drawn for slot 0.
struct RigaSlot {
    Descrizione disegno;
    int passo = 1; ///< what the index grows by from slot to slot
};

/// The containers of the slots, by slot.
using Contenitori = std::array<std::string_view, 5>;
inline constexpr Contenitori kPannelli{"picPannello(0)", "picPannello(1)", "picPannello(2)", "picPannello(3)",
                                       "picPannello(4)"};

/// The rows `disegni` once for each of the first `Slot` containers.
template <std::size_t Slot, std::size_t N>
[[nodiscard]] constexpr auto perSlot(const Contenitori& contenitori, const std::array<RigaSlot, N>& disegni) {
    static_assert(Slot <= std::tuple_size_v<Contenitori>);
    std::array<Descrizione, Slot * N> righe{};
    for (std::size_t slot = 0; slot < Slot; ++slot) {
        for (std::size_t i = 0; i < N; ++i) {
            Descrizione& riga = righe[slot * N + i];
            riga = disegni[i].disegno;
            riga.indice += static_cast<int>(slot) * disegni[i].passo;
            riga.padre = contenitori[slot];
        }
    }
    return righe;
}

} // namespace lumigrafo
