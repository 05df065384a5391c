#pragma once

#include "data/jet/vista.h"

#include <array>
#include <cstdint>
#include <memory>

namespace lumigrafo::jet {

inline constexpr std::size_t kPagina = 4096; ///< bytes in a page

/// First byte of a page.
enum class TipoPagina : std::uint8_t {
    Libera = 0,
    Dati = 1,
    Definizione = 2,
    Nodo = 3,
    Foglia = 4,
    Mappa = 5
};

inline constexpr std::uint32_t kPaginaIntestazione = 0;
inline constexpr std::uint32_t kPaginaMappaGlobale = 1;
inline constexpr std::uint32_t kPaginaCatalogo = 2;

struct Pagina {
    std::array<std::uint8_t, kPagina> byte{};

    [[nodiscard]] TipoPagina tipo() const { return static_cast<TipoPagina>(byte[0]); }
    [[nodiscard]] Vista vista(std::uint32_t numero) const { return {byte, numero}; }

    // Offsets are those of fixed fields, known to lie inside.
    [[nodiscard]] std::uint16_t u16(std::size_t i) const {
        return static_cast<std::uint16_t>(byte[i] | byte[i + 1] << 8);
    }
    [[nodiscard]] std::uint32_t u32(std::size_t i) const {
        return u16(i) | static_cast<std::uint32_t>(u16(i + 2)) << 16;
    }
    void scrivi16(std::size_t i, std::size_t n) {
        byte[i] = static_cast<std::uint8_t>(n);
        byte[i + 1] = static_cast<std::uint8_t>(n >> 8);
    }
    void scrivi32(std::size_t i, std::uint32_t n) {
        scrivi16(i, n & 0xFFFF);
        scrivi16(i + 2, n >> 16);
    }
};

/// A page as it was read: shared by the cache and by those who still look at it, never changed.
using PaginaLetta = std::shared_ptr<const Pagina>;

/// Address of a row, or of a usage map or long value that lies as one.
struct Posizione {
    std::uint32_t pagina = 0;
    std::uint8_t slot = 0;

    /// As pointers have it in the file: the slot in the low byte, the page above.
    [[nodiscard]] static Posizione da(std::uint32_t puntatore) {
        return {puntatore >> 8, static_cast<std::uint8_t>(puntatore)};
    }
    [[nodiscard]] std::uint32_t puntatore() const { return pagina << 8 | slot; }
    friend auto operator<=>(const Posizione&, const Posizione&) = default;
};

} // namespace lumigrafo::jet
