// The half of Tabella that finds places for rows and keeps counts and indexes.
#include "data/jet/albero.h"
#include "data/jet/mappa.h"
#include "data/jet/modifica_dati.h"
#include "data/jet/pazienza.h"
#include "data/jet/spazio.h"
#include "data/jet/tabella.h"

#include <algorithm>

namespace lumigrafo::jet {

namespace {

/// As rows in other pages are referred to from a moved one's slot.
std::string puntatore(Posizione p) {
    std::string s;
    for (int i = 0; i < 4; ++i)
        s += static_cast<char>(p.puntatore() >> (8 * i));
    return s;
}

constexpr std::size_t kPuntatore = 4;

} // namespace

std::optional<Posizione> Tabella::posaInPagina(std::uint32_t numero, std::string_view byte,
                                               std::uint16_t segni) {
    try {
        pagine_.bloccaPagina(numero);
    } catch (const Guasto& guasto) { // another station is on it: there are other pages
        if (guasto.numero() != kOccupata)
            throw;
        return std::nullopt;
    }
    const PaginaLetta pagina = pagine_.leggi(numero);
    const bool propria =
        pagina->tipo() == TipoPagina::Dati && pagina->u32(PaginaDati::kProprietario) == definizione_.pagina;
    if (propria && PaginaDati(pagina, numero).quanti() < PaginaDati::kSlotMassimi &&
        pagina->u16(PaginaDati::kLiberi) >= byte.size() + 2)
        return Posizione{numero, ModificaDati(pagine_, numero).aggiungi(byte, segni)};
    Mappa(pagine_, definizione_.libere).togli(numero);
    return std::nullopt;
}

Posizione Tabella::posa(std::string_view byte, std::uint16_t segni) {
    const auto conPosto = Mappa(pagine_, definizione_.libere).tutte();
    for (auto p = conPosto.rbegin(); p != conPosto.rend(); ++p)
        if (const auto posizione = posaInPagina(*p, byte, segni))
            return *posizione;
    const std::uint32_t nuova = nuovaPaginaDati();
    return {nuova, ModificaDati(pagine_, nuova).aggiungi(byte, segni)};
}

std::uint32_t Tabella::nuovaPaginaDati() {
    const std::uint32_t nuova = allocaPagina(pagine_);
    ModificaDati::inizia(pagine_.modifica(nuova), definizione_.pagina);
    Mappa(pagine_, definizione_.possedute).aggiungi(nuova);
    Mappa(pagine_, definizione_.libere).aggiungi(nuova);
    return nuova;
}

void Tabella::riscrivi(Posizione posizione, Posizione vera, std::string_view byte) {
    const bool spostata = vera != posizione;
    if (ModificaDati sua(pagine_, vera.pagina); sua.entraAlPosto(vera.slot, byte.size())) {
        sua.sostituisci(vera.slot, byte, spostata ? Slot::kNascosta : 0);
        return;
    }
    if (spostata)
        togliByte(vera);
    const Posizione nuova = posa(byte, Slot::kNascosta);
    ModificaDati indirizzo(pagine_, posizione.pagina);
    if (!indirizzo.entraAlPosto(posizione.slot, kPuntatore)) // a row of Yes/No fields alone never grows
        throw danno(posizione.pagina, "una riga non si può spostare");
    indirizzo.sostituisci(posizione.slot, puntatore(nuova), Slot::kSpostata);
}

void Tabella::togliByte(Posizione posizione) {
    ModificaDati(pagine_, posizione.pagina).elimina(posizione.slot);
    Mappa libere(pagine_, definizione_.libere);
    if (!libere.contiene(posizione.pagina))
        libere.aggiungi(posizione.pagina);
}

void Tabella::aggiornaIndici(const Chiavi& vecchie, const Chiavi& nuove, Posizione riga) {
    for (std::size_t k = 0; k < nuove.size(); ++k) {
        if (vecchie[k] == nuove[k])
            continue;
        Albero albero(pagine_, definizione_, definizione_.indici[k]);
        if (vecchie[k])
            albero.togli(*vecchie[k], riga);
        if (!nuove[k])
            continue;
        if (!albero.contieneChiave(*nuove[k], riga))
            contaDistinta(k);
        albero.inserisci(*nuove[k], riga);
    }
}

void Tabella::contaDistinta(std::size_t indice) {
    const std::size_t posto = Definizione::kIndici + Definizione::kPassoIndici * indice + 4;
    Pagina& prima = pagine_.modifica(numero_);
    prima.scrivi32(posto, prima.u32(posto) + 1);
}

void Tabella::contaRighe(int differenza) {
    Pagina& prima = pagine_.modifica(numero_);
    prima.scrivi32(Definizione::kRighe,
                   prima.u32(Definizione::kRighe) + static_cast<std::uint32_t>(differenza));
}

} // namespace lumigrafo::jet
