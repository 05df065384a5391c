#include "data/jet/esame_indice.h"

#include <algorithm>

namespace lumigrafo::jet {

namespace {

constexpr int kProfonditaMassima = 32;
constexpr std::size_t kLiberi = 2;

} // namespace

std::vector<std::string> EsameIndice::voci() {
    scendi(indice_.radice, 0);
    if (attesa_ != 0)
        dire_(ultimaFoglia_, "l'ultima foglia ne nomina un'altra");
    return std::move(voci_);
}

std::string EsameIndice::scendi(std::uint32_t numero, int profondita) {
    if (profondita > kProfonditaMassima || viste_.size() > pagine_.quante())
        throw danno(numero, "l'indice gira in tondo");
    viste_.push_back(numero);
    const PaginaLetta cruda = pagine_.leggi(numero);
    const PaginaIndice p = PaginaIndice::leggi(*cruda, numero, definizione_.pagina);
    controllaLiberi(numero, p, *cruda);
    const std::size_t prima = voci_.size();
    if (p.foglia)
        foglia(numero, p, profondita);
    else
        nodo(numero, p, profondita);
    return voci_.size() > prima ? voci_.back() : std::string();
}

void EsameIndice::nodo(std::uint32_t numero, const PaginaIndice& p, int profondita) {
    if (p.voci.empty() && p.coda == 0)
        throw danno(numero, "un nodo dell'indice non ha figli");
    for (const Voce& v : p.voci)
        if (const std::string ultima = scendi(v.figlio, profondita + 1); ultima != v.byte)
            dire_(numero, "la chiave del nodo non è l'ultima della pagina " + std::to_string(v.figlio));
    if (p.coda != 0)
        scendi(p.coda, profondita + 1);
}

void EsameIndice::foglia(std::uint32_t numero, const PaginaIndice& p, int profondita) {
    if (profonditaFoglie_ < 0)
        profonditaFoglie_ = profondita;
    if (profondita != profonditaFoglie_)
        dire_(numero, "una foglia dell'indice sta a un'altra profondità");
    if (p.precedente != ultimaFoglia_ || (attesa_ != 0 && attesa_ != numero) ||
        (attesa_ == 0 && ultimaFoglia_ != 0))
        dire_(numero, "le foglie dell'indice non sono in fila");
    ultimaFoglia_ = numero;
    attesa_ = p.seguente;
    if (p.voci.empty() && profondita > 0)
        dire_(numero, "una foglia dell'indice è vuota");
    for (const Voce& v : p.voci) {
        if (!voci_.empty() && v.byte <= voci_.back())
            dire_(numero, "le voci dell'indice non sono in ordine");
        voci_.push_back(v.byte);
    }
}

void EsameIndice::controllaLiberi(std::uint32_t numero, const PaginaIndice& p, const Pagina& cruda) {
    constexpr std::size_t kPrefisso = 24;
    const std::size_t prefisso = cruda.u16(kPrefisso);
    std::size_t usati = p.voci.empty() ? 0 : prefisso;
    for (const Voce& v : p.voci)
        usati += p.lunga(v) - std::min(prefisso, p.lunga(v));
    if (cruda.u16(kLiberi) + usati != PaginaIndice::kSpazio)
        dire_(numero, "i byte liberi della pagina d'indice non tornano");
}

} // namespace lumigrafo::jet
