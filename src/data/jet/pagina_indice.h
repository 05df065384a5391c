#pragma once

#include "data/jet/pagina.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lumigrafo::jet {

/// An entry of an index: the key's bytes with the row's address behind them, big-endian, so that entries
/// order by their bytes and none is twice there. In a node it is the last one below `figlio`.
struct Voce {
    static constexpr std::size_t kIndirizzo = 4;
    /// Three entries of the longest key fit into a node, so that a full page can always be split in two.
    static constexpr std::size_t kChiaveMassima = 1197;

    std::string byte;
    std::uint32_t figlio = 0; ///< nodes only: page

    [[nodiscard]] static std::string componi(std::string_view chiave, Posizione riga);
    [[nodiscard]] std::string_view chiave() const {
        return std::string_view(byte).substr(0, byte.size() - kIndirizzo);
    }
    [[nodiscard]] Posizione riga() const;
};

/// A page of an index taken apart: read, changed in memory, and put together again.
struct PaginaIndice {
    static constexpr std::size_t kSpazio = 3616; ///< bytes for entries

    bool foglia = true;
    std::uint32_t proprietario = 0;             ///< the table's definition
    std::uint32_t precedente = 0, seguente = 0; ///< pages of the same level
    std::uint32_t coda = 0;                     ///< nodes: a last child without an entry, 0 for none
    std::uint8_t livello = 0;
    std::vector<Voce> voci;

    /// Throws Guasto 3049 for a page that can't be one of that table's index.
    [[nodiscard]] static PaginaIndice leggi(const Pagina& pagina, std::uint32_t numero,
                                            std::uint32_t tabella);
    /// False where the entries need more room than a page has, even with their common prefix left out.
    [[nodiscard]] bool entra() const;
    /// Moves the entries behind some place to a new page, which takes the tail as well: so that both fit and
    /// are of like size, or, where this page keeps growing at its end (`allaFine`), the last one alone.
    [[nodiscard]] PaginaIndice dividi(bool allaFine);
    /// Throws Guasto 3049 where they don't fit.
    void scrivi(Pagina& pagina) const;

    /// Bytes of one entry in this kind of page.
    [[nodiscard]] std::size_t lunga(const Voce& voce) const { return voce.byte.size() + (foglia ? 0 : 4); }
    /// Place of the first entry that isn't below these bytes; how many there are, if none.
    [[nodiscard]] std::size_t primaNonMinore(std::string_view byte) const;

private:
    [[nodiscard]] std::size_t prefissoComune() const;
    [[nodiscard]] std::size_t byteCon(std::size_t prefisso) const;
    [[nodiscard]] std::size_t tagliaMigliore() const;
};

} // namespace lumigrafo::jet
