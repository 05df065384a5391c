#pragma once

#include "data/jet/definizione.h"
#include "data/jet/pagina_indice.h"

#include <string_view>
#include <vector>

namespace lumigrafo::jet {

/// An index as a tree of pages.
class Albero {
public:
    Albero(Pagine& pagine, const Definizione& definizione, const Indice& indice)
        : pagine_(pagine), definizione_(definizione), indice_(indice) {}

    /// The rows of all entries from `da` on, in the index's order, for as long as `ancora(chiave)` is true.
    /// Throws Guasto 3049 for a tree that isn't one.
    template <typename Ancora>
    [[nodiscard]] std::vector<Posizione> da(std::string_view da, Ancora&& ancora) const;
    /// The rows whose key begins with these bytes: with the keys of the index's first columns, or all of
    /// them.
    [[nodiscard]] std::vector<Posizione> conPrefisso(std::string_view prefisso) const {
        return da(prefisso, [&](std::string_view chiave) { return chiave.starts_with(prefisso); });
    }
    /// True if an entry has exactly this key, other than that of `tranne`.
    [[nodiscard]] bool contieneChiave(std::string_view chiave, Posizione tranne) const;

    // Inside Pagine::cambia.
    void inserisci(std::string_view chiave, Posizione riga);
    /// Throws Guasto 3049 where the entry isn't there: the index disagrees with its table.
    void togli(std::string_view chiave, Posizione riga);

private:
    /// A page on the way from the root, and the place of the child that was taken: how many entries there
    /// are, for the tail.
    struct Passo {
        std::uint32_t numero;
        PaginaIndice pagina;
        std::size_t figlio;
        bool cambiata = false;
    };
    using Via = std::vector<Passo>;

    [[nodiscard]] PaginaIndice leggi(std::uint32_t numero) const;
    /// From the root to the leaf where these bytes stand or would stand.
    [[nodiscard]] Via scendi(std::string_view byte) const;
    void scrivi(std::uint32_t numero, const PaginaIndice& pagina);
    /// The entry that ends the page at `via[livello]` is now `nuova`: tells the nodes above.
    static void correggiPadri(Via& via, std::size_t livello, const std::string& nuova);
    /// Writes what of the way was changed, from the leaf upwards; splits what has become too large.
    void posa(Via& via, bool allaFine);
    void dividi(Via& via, std::size_t livello, bool allaFine);
    void dividiRadice(Passo& radice, bool allaFine);
    [[nodiscard]] std::uint32_t nuovaPagina();
    /// Takes out the page at `via[livello]`, which has nothing left in it.
    void togliPagina(Via& via, std::size_t livello);
    void togliFiglio(Via& via, std::size_t livello);
    void collega(std::uint32_t sinistra, std::uint32_t destra);
    [[nodiscard]] std::string ultimaSotto(std::uint32_t numero) const;

    Pagine& pagine_;
    const Definizione& definizione_;
    const Indice& indice_;
};

template <typename Ancora>
std::vector<Posizione> Albero::da(std::string_view da, Ancora&& ancora) const {
    std::vector<Posizione> righe;
    const Via via = scendi(da);
    PaginaIndice foglia = via.back().pagina;
    std::uint32_t viste = 0;
    for (std::size_t i = foglia.primaNonMinore(da);; i = 0) {
        for (; i < foglia.voci.size(); ++i) {
            if (!ancora(foglia.voci[i].chiave()))
                return righe;
            righe.push_back(foglia.voci[i].riga());
        }
        const std::uint32_t seguente = foglia.seguente;
        if (seguente == 0)
            return righe;
        if (++viste > pagine_.quante())
            throw danno(seguente, "le foglie dell'indice girano in tondo");
        foglia = leggi(seguente);
        if (!foglia.foglia)
            throw danno(seguente, "una foglia dell'indice porta a un nodo");
    }
}

} // namespace lumigrafo::jet
