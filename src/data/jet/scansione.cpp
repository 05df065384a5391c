#include "data/jet/scansione.h"

#include "data/jet/mappa.h"

namespace lumigrafo::jet {

std::vector<RigaTrovata> scorri(Pagine& pagine, const Definizione& definizione) {
    std::vector<RigaTrovata> righe;
    const Mappa possedute(pagine, definizione.possedute);
    if (const auto perse = possedute.oltreLaFine(); !perse.empty())
        throw danno(perse.front(), "oltre la fine del file");
    for (const std::uint32_t numero : possedute.tutte()) {
        const PaginaLetta pagina = pagine.leggi(numero);
        if (pagina->tipo() != TipoPagina::Dati ||
            pagina->u32(PaginaDati::kProprietario) != definizione.pagina)
            continue; // a page given back, or one of long values
        const PaginaDati p(pagina, numero);
        for (unsigned i = 0; i < p.quanti(); ++i) {
            const Slot s = p.slot(i);
            if (s.segni & Slot::kNascosta)
                continue;
            const Posizione posizione{numero, static_cast<std::uint8_t>(i)};
            if (!s.spostata())
                righe.push_back({posizione, {pagina, p.byte(s), posizione}});
            else if (auto spostata = rigaA(pagine, posizione, definizione.pagina))
                righe.push_back({posizione, std::move(*spostata)});
        }
    }
    return righe;
}

} // namespace lumigrafo::jet
