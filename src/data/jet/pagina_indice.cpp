#include "data/jet/pagina_indice.h"

#include <algorithm>

namespace lumigrafo::jet {

namespace {

constexpr std::size_t kLiberi = 2, kProprietario = 4, kPrecedente = 12, kSeguente = 16, kCoda = 20,
                      kPrefisso = 24, kLivello = 26, kMaschera = 27, kVoci = 480;

void accodaBe(std::string& s, std::uint32_t n, int byte) {
    for (int i = byte; i-- > 0;)
        s += static_cast<char>(n >> (8 * i));
}

/// Where the entries end, ascending, counted from the first one's begin.
std::vector<std::size_t> confini(const Pagina& p) {
    std::vector<std::size_t> fini;
    for (std::size_t j = 0; j < kVoci - kMaschera; ++j)
        for (unsigned k = 0; p.byte[kMaschera + j] >> k != 0; ++k)
            if (p.byte[kMaschera + j] >> k & 1)
                fini.push_back(8 * j + k);
    return fini;
}

} // namespace

std::string Voce::componi(std::string_view chiave, Posizione riga) {
    std::string s(chiave);
    accodaBe(s, riga.pagina, 3);
    s += static_cast<char>(riga.slot);
    return s;
}

Posizione Voce::riga() const {
    const Vista v({reinterpret_cast<const std::uint8_t*>(byte.data()), byte.size()}, 0);
    return {v.be(byte.size() - kIndirizzo, 3), v.u8(byte.size() - 1)};
}

PaginaIndice PaginaIndice::leggi(const Pagina& p, std::uint32_t numero, std::uint32_t tabella) {
    PaginaIndice x;
    x.foglia = p.tipo() == TipoPagina::Foglia;
    x.proprietario = p.u32(kProprietario);
    if ((!x.foglia && p.tipo() != TipoPagina::Nodo) || x.proprietario != tabella)
        throw danno(numero, "non è una pagina dell'indice");
    x.precedente = p.u32(kPrecedente);
    x.seguente = p.u32(kSeguente);
    x.coda = x.foglia ? 0 : p.u32(kCoda);
    x.livello = p.byte[kLivello];
    const std::size_t prefisso = p.u16(kPrefisso);
    const std::size_t minimo = 1 + Voce::kIndirizzo + (x.foglia ? 0 : 4);
    const Vista voci = p.vista(numero).da(kVoci);
    std::string comune;
    std::size_t inizio = 0;
    for (const std::size_t fine : confini(p)) {
        const Vista v = voci.brano(inizio, fine - inizio);
        Voce voce{comune + std::string(v.testo())};
        if (voce.byte.size() < minimo)
            throw danno(numero, "una voce dell'indice è troppo corta");
        if (inizio == 0 && prefisso > voce.byte.size())
            throw danno(numero, "il prefisso è più lungo della prima voce");
        if (inizio == 0)
            comune = voce.byte.substr(0, prefisso);
        if (!x.foglia) {
            voce.figlio = v.be(v.lunga() - 4, 4);
            voce.byte.resize(voce.byte.size() - 4);
        }
        x.voci.push_back(std::move(voce));
        inizio = fine;
    }
    return x;
}

std::size_t PaginaIndice::prefissoComune() const {
    if (voci.size() < 2)
        return 0;
    const std::string_view prima = voci.front().chiave(), ultima = voci.back().chiave();
    std::size_t n = static_cast<std::size_t>(
        std::mismatch(prima.begin(), prima.end(), ultima.begin(), ultima.end()).first - prima.begin());
    for (const Voce& v : voci) // the prefix must not reach into an address
        n = std::min(n, v.chiave().size());
    return n;
}

std::size_t PaginaIndice::byteCon(std::size_t prefisso) const {
    std::size_t n = prefisso;
    for (const Voce& v : voci)
        n += lunga(v) - prefisso;
    return voci.empty() ? 0 : n;
}

bool PaginaIndice::entra() const {
    return byteCon(0) <= kSpazio || byteCon(prefissoComune()) <= kSpazio;
}

void PaginaIndice::scrivi(Pagina& p) const {
    const std::size_t prefisso = byteCon(0) <= kSpazio ? 0 : prefissoComune();
    const std::size_t usati = byteCon(prefisso);
    if (usati > kSpazio)
        throw danno(0, "una pagina d'indice troppo piena");
    p.byte.fill(0);
    p.byte[0] = static_cast<std::uint8_t>(foglia ? TipoPagina::Foglia : TipoPagina::Nodo);
    p.byte[1] = 1;
    p.scrivi16(kLiberi, kSpazio - usati);
    p.scrivi32(kProprietario, proprietario);
    p.scrivi32(kPrecedente, precedente);
    p.scrivi32(kSeguente, seguente);
    p.scrivi32(kCoda, coda);
    p.scrivi16(kPrefisso, prefisso);
    p.byte[kLivello] = livello;
    std::string tutte;
    for (const Voce& v : voci) {
        tutte.append(v.byte, &v == &voci.front() ? 0 : prefisso);
        if (!foglia)
            accodaBe(tutte, v.figlio, 4);
        p.byte[kMaschera + tutte.size() / 8] |= static_cast<std::uint8_t>(1 << tutte.size() % 8);
    }
    std::copy(tutte.begin(), tutte.end(), p.byte.begin() + kVoci);
}

std::size_t PaginaIndice::primaNonMinore(std::string_view byte) const {
    const auto v = std::lower_bound(voci.begin(), voci.end(), byte,
                                    [](const Voce& a, std::string_view b) { return a.byte < b; });
    return static_cast<std::size_t>(v - voci.begin());
}

} // namespace lumigrafo::jet
