#pragma once

#include "data/jet/pagina_dati.h"

#include <cstdint>
#include <vector>

namespace lumigrafo::jet {

/// A set of page numbers as the file keeps it: a row with a bitmap in it, or with the numbers of bitmap
/// pages. Each page of a table or index stands in such a set, and the free ones of the file in another.
class Mappa {
public:
    /// `posizione`: of the map's row. Reads nothing yet.
    Mappa(Pagine& pagine, Posizione posizione) : pagine_(pagine), posizione_(posizione) {}

    /// The pages of the set that lie inside the file, ascending. Throws Guasto 3049.
    [[nodiscard]] std::vector<std::uint32_t> tutte() const;
    /// Those that don't: of a table's or an index's set, proof that the file was cut short.
    [[nodiscard]] std::vector<std::uint32_t> oltreLaFine() const;
    [[nodiscard]] bool contiene(std::uint32_t numero) const;
    /// The bitmap pages of a set that has such.
    [[nodiscard]] std::vector<std::uint32_t> pagineDiBit() const;
    [[nodiscard]] Posizione posizione() const { return posizione_; }

    /// Inside Pagine::cambia. A page that is in the set already stays.
    void aggiungi(std::uint32_t numero);
    void togli(std::uint32_t numero);

private:
    static constexpr std::size_t kTestaRiga = 5, kTestaPagina = 4;
    static constexpr std::uint32_t kBitPerPagina = 8 * (kPagina - kTestaPagina);
    enum Genere : std::uint8_t { InRiga = 0, APagine = 1 };

    [[nodiscard]] std::vector<std::uint32_t> elenco(std::uint32_t da, std::uint32_t fine) const;
    [[nodiscard]] Vista riga() const;
    [[nodiscard]] std::span<std::uint8_t> rigaDaModificare();
    [[nodiscard]] bool cambia(std::uint32_t numero, bool dentro);
    [[nodiscard]] bool globale() const;
    [[nodiscard]] bool inRiga() const;
    void allarga(std::uint32_t numero);
    void globaleAPagine();
    [[nodiscard]] std::uint32_t paginaDiLibere(std::uint32_t numero);
    [[nodiscard]] bool sposta(std::uint32_t numero);
    void aPagine();

    Pagine& pagine_;
    Posizione posizione_;
};

/// The map of the file's free pages.
[[nodiscard]] inline Mappa mappaGlobale(Pagine& pagine) {
    return {pagine, {kPaginaMappaGlobale, 0}};
}

} // namespace lumigrafo::jet
