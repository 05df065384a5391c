#include "data/jet/spazio.h"

#include <algorithm>

namespace lumigrafo::jet {

std::uint32_t allocaPagina(Pagine& pagine) {
    (void)pagine.modifica(
        kPaginaMappaGlobale); // locked before it is read: two stations must not take the same page
    Mappa libere = mappaGlobale(pagine);
    const auto tutte = libere.tutte();
    const auto prima = std::upper_bound(tutte.begin(), tutte.end(), kPaginaCatalogo);
    if (prima == tutte.end()) {
        const std::uint32_t nuova = pagine.aggiungi();
        libere.togli(nuova);
        return nuova;
    }
    pagine.modifica(*prima) = Pagina();
    libere.togli(*prima);
    return *prima;
}

void liberaPagina(Pagine& pagine, std::uint32_t numero) {
    (void)pagine.modifica(kPaginaMappaGlobale);
    mappaGlobale(pagine).aggiungi(numero);
}

} // namespace lumigrafo::jet
