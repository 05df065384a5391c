// The half of Albero that changes the tree. Invariant: a node's entry is exactly the last one below its
// child.
#include "data/jet/albero.h"
#include "data/jet/spazio.h"

#include <algorithm>
#include <utility>

namespace lumigrafo::jet {

namespace {

constexpr std::size_t kPrecedente = 12, kSeguente = 16;

} // namespace

void Albero::scrivi(std::uint32_t numero, const PaginaIndice& pagina) {
    pagina.scrivi(pagine_.modifica(numero));
}

std::uint32_t Albero::nuovaPagina() {
    const std::uint32_t numero = allocaPagina(pagine_);
    Mappa(pagine_, indice_.mappa).aggiungi(numero);
    return numero;
}

void Albero::collega(std::uint32_t sinistra, std::uint32_t destra) {
    if (sinistra != 0)
        pagine_.modifica(sinistra).scrivi32(kSeguente, destra);
    if (destra != 0)
        pagine_.modifica(destra).scrivi32(kPrecedente, sinistra);
}

void Albero::inserisci(std::string_view chiave, Posizione riga) {
    const Voce nuova{Voce::componi(chiave, riga)};
    Via via = scendi(nuova.byte);
    PaginaIndice& foglia = via.back().pagina;
    const std::size_t posto = foglia.primaNonMinore(nuova.byte);
    if (posto < foglia.voci.size() && foglia.voci[posto].byte == nuova.byte)
        throw danno(via.back().numero, "l'indice ha già la riga nuova");
    const bool ultima = posto == foglia.voci.size();
    foglia.voci.insert(foglia.voci.begin() + static_cast<std::ptrdiff_t>(posto), nuova);
    via.back().cambiata = true;
    if (ultima)
        correggiPadri(via, via.size() - 1, nuova.byte);
    posa(via, ultima && foglia.seguente == 0);
}

void Albero::correggiPadri(Via& via, std::size_t livello, const std::string& nuova) {
    while (livello-- > 0) {
        Passo& padre = via[livello];
        const std::size_t voci = padre.pagina.voci.size();
        if (padre.figlio < voci) {
            padre.pagina.voci[padre.figlio].byte = nuova;
            padre.cambiata = true;
        }
        if (padre.figlio + 1 < voci || (padre.figlio < voci && padre.pagina.coda != 0))
            return; // not the last child
    }
}

void Albero::posa(Via& via, bool allaFine) {
    for (std::size_t i = via.size(); i-- > 0;) {
        if (!via[i].cambiata)
            continue;
        if (via[i].pagina.entra())
            scrivi(via[i].numero, via[i].pagina);
        else if (i > 0)
            dividi(via, i, allaFine);
        else
            dividiRadice(via[0], allaFine);
    }
}

void Albero::dividi(Via& via, std::size_t livello, bool allaFine) {
    Passo& passo = via[livello];
    // In a node only a split at its end may leave it full: elsewhere its children go on growing.
    PaginaIndice destra = passo.pagina.dividi(allaFine);
    const std::uint32_t numero = nuovaPagina();
    const std::uint32_t seguente = destra.seguente;
    destra.precedente = passo.numero;
    passo.pagina.seguente = numero;
    scrivi(passo.numero, passo.pagina);
    scrivi(numero, destra);
    collega(numero, seguente);

    Passo& padre = via[livello - 1];
    Voce sinistra = passo.pagina.voci.back();
    sinistra.figlio = passo.numero;
    auto& voci = padre.pagina.voci;
    if (padre.figlio < voci.size())
        voci[padre.figlio].figlio = numero; // its key is right already
    else
        padre.pagina.coda = numero;
    voci.insert(voci.begin() + static_cast<std::ptrdiff_t>(padre.figlio), std::move(sinistra));
    padre.cambiata = true;
}

void Albero::dividiRadice(Passo& radice, bool allaFine) {
    PaginaIndice sinistra = std::move(radice.pagina);
    PaginaIndice destra = sinistra.dividi(allaFine);
    const std::uint32_t numeroSinistra = nuovaPagina(), numeroDestra = nuovaPagina();
    sinistra.seguente = numeroDestra;
    destra.precedente = numeroSinistra;
    PaginaIndice nuova;
    nuova.foglia = false;
    nuova.proprietario = sinistra.proprietario;
    nuova.livello = static_cast<std::uint8_t>(sinistra.livello + 1);
    nuova.voci.push_back({sinistra.voci.back().byte, numeroSinistra});
    nuova.coda = numeroDestra;
    scrivi(numeroSinistra, sinistra);
    scrivi(numeroDestra, destra);
    scrivi(radice.numero, nuova);
}

void Albero::togli(std::string_view chiave, Posizione riga) {
    const std::string byte = Voce::componi(chiave, riga);
    Via via = scendi(byte);
    PaginaIndice& foglia = via.back().pagina;
    const std::size_t posto = foglia.primaNonMinore(byte);
    if (posto == foglia.voci.size() || foglia.voci[posto].byte != byte)
        throw danno(via.back().numero, "l'indice non ha la riga");
    foglia.voci.erase(foglia.voci.begin() + static_cast<std::ptrdiff_t>(posto));
    via.back().cambiata = true;
    if (foglia.voci.empty() && via.size() > 1)
        togliPagina(via, via.size() - 1);
    else if (posto == foglia.voci.size() && !foglia.voci.empty())
        correggiPadri(via, via.size() - 1, foglia.voci.back().byte);
    posa(via, false);
}

void Albero::togliPagina(Via& via, std::size_t livello) {
    Passo& passo = via[livello];
    collega(passo.pagina.precedente, passo.pagina.seguente);
    passo.cambiata = false;
    Mappa(pagine_, indice_.mappa).togli(passo.numero);
    liberaPagina(pagine_, passo.numero);
    togliFiglio(via, livello - 1);
}

void Albero::togliFiglio(Via& via, std::size_t livello) {
    Passo& passo = via[livello];
    PaginaIndice& p = passo.pagina;
    passo.cambiata = true;
    const bool ultimo = passo.figlio == p.voci.size() || (passo.figlio + 1 == p.voci.size() && p.coda == 0);
    if (passo.figlio < p.voci.size())
        p.voci.erase(p.voci.begin() + static_cast<std::ptrdiff_t>(passo.figlio));
    else
        p.coda = 0;
    if (p.voci.empty() && p.coda != 0) { // a node has at least one entry
        p.voci.push_back({ultimaSotto(p.coda), p.coda});
        p.coda = 0;
    } else if (p.voci.empty() && livello > 0) {
        togliPagina(via, livello);
    } else if (p.voci.empty()) {
        p.foglia = true;
        p.livello = 0;
    } else if (ultimo && p.coda == 0) {
        correggiPadri(via, livello, p.voci.back().byte);
    }
}

std::string Albero::ultimaSotto(std::uint32_t numero) const {
    for (std::uint32_t passi = 0;; ++passi) {
        const PaginaIndice p = leggi(numero);
        if (passi > 32 || (p.voci.empty() && p.coda == 0))
            throw danno(numero, "un ramo dell'indice non porta a niente");
        if (p.foglia || p.coda == 0) {
            if (p.foglia)
                return p.voci.back().byte;
            numero = p.voci.back().figlio;
        } else {
            numero = p.coda;
        }
    }
}

} // namespace lumigrafo::jet
