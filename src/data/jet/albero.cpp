#include "data/jet/albero.h"

namespace lumigrafo::jet {

PaginaIndice Albero::leggi(std::uint32_t numero) const {
    return PaginaIndice::leggi(*pagine_.leggi(numero), numero, definizione_.pagina);
}

Albero::Via Albero::scendi(std::string_view byte) const {
    constexpr std::size_t kProfonditaMassima = 32;
    Via via;
    for (std::uint32_t numero = indice_.radice;;) {
        if (via.size() >= kProfonditaMassima)
            throw danno(numero, "l'indice gira in tondo");
        via.push_back({numero, leggi(numero), 0, false});
        Passo& passo = via.back();
        if (passo.pagina.foglia)
            return via;
        passo.figlio = passo.pagina.primaNonMinore(byte);
        if (passo.figlio < passo.pagina.voci.size()) {
            numero = passo.pagina.voci[passo.figlio].figlio;
        } else if (passo.pagina.coda != 0) {
            numero = passo.pagina.coda;
        } else if (!passo.pagina.voci.empty()) {
            numero = passo.pagina.voci[--passo.figlio].figlio;
        } else {
            throw danno(numero, "un nodo dell'indice non ha figli");
        }
    }
}

bool Albero::contieneChiave(std::string_view chiave, Posizione tranne) const {
    // Two are enough to know: thousands of rows may have the same key.
    int viste = 0;
    const auto righe = da(chiave, [&](std::string_view c) { return c == chiave && viste++ < 2; });
    return !(righe.empty() || (righe.size() == 1 && righe.front() == tranne));
}

} // namespace lumigrafo::jet
