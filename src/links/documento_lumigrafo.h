#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace lumigrafo {

/// What one Android board is told: the whole state of the board.
struct DatiLumigrafo {
    static constexpr std::size_t kGruppi = 3, kPosti = 9;
    struct Colori {
        std::string sfondo, testo; ///< decimal, red in the low byte, as the settings hold them
    };

    std::int16_t Last = -1; ///< group that was just called (0..2); -1 resets the board
    std::string ServerDir;  ///< goes out with a reset alone
    std::array<std::string, kGruppi> Categoria;
    std::int16_t FontNumeri = 0;
    std::string TitoloLumigrafo;
    std::array<std::array<std::string, kPosti>, kGruppi> Numeri; ///< by group and slot; slot 3 is the newest
    std::array<Colori, kGruppi> colori;
};

/// The document that goes over the network, without line breaks or blanks between its tokens. UTF-8.
[[nodiscard]] std::string documentoLumigrafo(const DatiLumigrafo& dati);

} // namespace lumigrafo
