#pragma once

#include "data/jet/definizione.h"
#include "data/jet/pagina_indice.h"

#include <functional>
#include <string>
#include <vector>

namespace lumigrafo::jet {

/// Walks one index from its root over all of its pages.
class EsameIndice {
public:
    using Dire = std::function<void(std::uint32_t pagina, const std::string& cosa)>;
    /// `dire` hears of each disagreement. Names what it says after the index.
    EsameIndice(Pagine& pagine, const Definizione& definizione, const Indice& indice, Dire dire)
        : pagine_(pagine), definizione_(definizione), indice_(indice), dire_(std::move(dire)) {}

    /// All entries in the order of the tree. Throws Guasto 3049 for a page that can't be read.
    [[nodiscard]] std::vector<std::string> voci();
    [[nodiscard]] const std::vector<std::uint32_t>& pagine() const { return viste_; }

private:
    /// The last entry below that page; empty where there is none.
    std::string scendi(std::uint32_t numero, int profondita);
    void nodo(std::uint32_t numero, const PaginaIndice& p, int profondita);
    void foglia(std::uint32_t numero, const PaginaIndice& p, int profondita);
    void controllaLiberi(std::uint32_t numero, const PaginaIndice& p, const Pagina& cruda);

    Pagine& pagine_;
    const Definizione& definizione_;
    const Indice& indice_;
    Dire dire_;
    std::vector<std::string> voci_;
    std::vector<std::uint32_t> viste_;
    std::uint32_t ultimaFoglia_ = 0, attesa_ = 0; ///< leaf before, and the one that it names as its next
    int profonditaFoglie_ = -1;
};

} // namespace lumigrafo::jet
