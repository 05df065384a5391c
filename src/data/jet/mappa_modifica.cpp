// The half of Mappa that changes the set.
#include "data/errori_dao.h"
#include "data/jet/mappa.h"
#include "data/jet/modifica_dati.h"
#include "data/jet/spazio.h"

#include <algorithm>

namespace lumigrafo::jet {

namespace {

void metti(std::span<std::uint8_t> bit, std::uint32_t i, bool dentro) {
    const auto uno = static_cast<std::uint8_t>(1 << i % 8);
    bit[i / 8] = static_cast<std::uint8_t>(dentro ? bit[i / 8] | uno : bit[i / 8] & ~uno);
}

void scriviU32(std::span<std::uint8_t> riga, std::size_t i, std::uint32_t n) {
    for (std::size_t k = 0; k < 4; ++k)
        riga[i + k] = static_cast<std::uint8_t>(n >> (8 * k));
}

} // namespace

std::span<std::uint8_t> Mappa::rigaDaModificare() {
    const Slot s = PaginaDati(pagine_.leggi(posizione_.pagina), posizione_.pagina).slot(posizione_.slot);
    return std::span(pagine_.modifica(posizione_.pagina).byte).subspan(s.inizio, s.lunga());
}

void Mappa::aggiungi(std::uint32_t numero) {
    if (cambia(numero, true))
        return;
    if (!sposta(numero))
        aPagine();
    if (!cambia(numero, true))
        throw erroreDao(dao::kDiscoPieno);
}

void Mappa::togli(std::uint32_t numero) {
    if (!cambia(numero, false) && globale())
        allarga(numero);
}

/// False where the set as it is kept now has no place for the page.
bool Mappa::cambia(std::uint32_t numero, bool dentro) {
    const Vista r = riga();
    if (r.u8(0) == InRiga) {
        const std::uint32_t base = r.u32(1);
        if (numero < base || numero - base >= 8 * (r.lunga() - kTestaRiga))
            return false;
        metti(rigaDaModificare().subspan(kTestaRiga), numero - base, dentro);
        return true;
    }
    const std::size_t posto = 1 + 4 * std::size_t{numero / kBitPerPagina};
    if (posto + 4 > r.lunga())
        return false;
    std::uint32_t p = r.u32(posto);
    if (p == 0 && globale()) {
        p = paginaDiLibere(numero);
    } else if (p == 0 && !dentro) {
        return true;
    } else if (p == 0) {
        p = allocaPagina(pagine_);
        Pagina& nuova = pagine_.modifica(p);
        nuova.byte[0] = static_cast<std::uint8_t>(TipoPagina::Mappa);
        nuova.byte[1] = 1;
        scriviU32(rigaDaModificare(), posto, p);
    }
    (void)pagine_.leggi(p, TipoPagina::Mappa);
    metti(std::span(pagine_.modifica(p).byte).subspan(kTestaPagina), numero % kBitPerPagina, dentro);
    return true;
}

/// Lets the bitmap in the row begin elsewhere, where all pages still fit into it.
bool Mappa::sposta(std::uint32_t numero) {
    auto pagine = tutte();
    pagine.push_back(numero);
    const auto [prima, ultima] = std::minmax_element(pagine.begin(), pagine.end());
    const std::uint32_t base = *prima & ~7U;
    const auto r = rigaDaModificare();
    if (r[0] != InRiga || *ultima - base >= 8 * (r.size() - kTestaRiga))
        return false;
    std::fill(r.begin() + 1, r.end(), std::uint8_t{0});
    scriviU32(r, 1, base);
    for (const std::uint32_t p : pagine)
        metti(r.subspan(kTestaRiga), p - base, true);
    return true;
}

/// Turns the row's bitmap into a list of bitmap pages.
void Mappa::aPagine() {
    const auto pagine = tutte();
    const auto r = rigaDaModificare();
    std::fill(r.begin(), r.end(), std::uint8_t{0});
    r[0] = APagine;
    for (const std::uint32_t p : pagine)
        if (!cambia(p, true))
            throw erroreDao(dao::kDiscoPieno);
}

bool Mappa::globale() const {
    return posizione_ == mappaGlobale(pagine_).posizione();
}

bool Mappa::inRiga() const {
    return riga().u8(0) == InRiga;
}

/// The map of free pages grows with the file: what it doesn't cover counts as free.
void Mappa::allarga(std::uint32_t numero) {
    const std::uint32_t base = riga().u32(1);
    if (!inRiga() || numero < base)
        return;
    constexpr std::uint32_t kPasso = 4; // bytes
    std::size_t bit = (numero - base) / 8 + 1;
    bit += (kPasso - bit % kPasso) % kPasso;
    if (ModificaDati pagina(pagine_, posizione_.pagina);
        pagina.entraAlPosto(posizione_.slot, kTestaRiga + bit)) {
        std::string nuova(riga().testo());
        nuova.resize(kTestaRiga + bit, '\xFF');
        pagina.sostituisci(posizione_.slot, nuova, 0);
    } else {
        globaleAPagine();
    }
    if (!cambia(numero, false))
        throw erroreDao(dao::kDiscoPieno);
}

/// The same as aPagine for the map of free pages, which can't ask itself for the pages that it needs.
void Mappa::globaleAPagine() {
    const auto libere = tutte();
    const auto r = rigaDaModificare();
    std::fill(r.begin(), r.end(), std::uint8_t{0});
    r[0] = APagine;
    for (std::uint32_t p = 0; p < pagine_.quante(); p += kBitPerPagina)
        if (!cambia(p, false))
            throw erroreDao(dao::kDiscoPieno);
    for (const std::uint32_t p : libere)
        (void)cambia(p, true);
}

/// A new bitmap page for that page's stretch of the file: what lies behind the file's end is free, what lies
/// before it is in use, since nobody said otherwise.
std::uint32_t Mappa::paginaDiLibere(std::uint32_t numero) {
    const std::uint32_t tratto = numero / kBitPerPagina;
    const std::uint32_t nuova = pagine_.aggiungi();
    Pagina& pagina = pagine_.modifica(nuova);
    pagina.byte.fill(0xFF);
    pagina.scrivi32(0, static_cast<std::uint32_t>(TipoPagina::Mappa) | 0x0100);
    const auto bit = std::span(pagina.byte).subspan(kTestaPagina);
    for (std::uint32_t p = tratto * kBitPerPagina; p < pagine_.quante() && p / kBitPerPagina == tratto; ++p)
        metti(bit, p % kBitPerPagina, false);
    scriviU32(rigaDaModificare(), 1 + 4 * std::size_t{tratto}, nuova);
    if (nuova / kBitPerPagina != tratto) // it may lie in a stretch of its own
        togli(nuova);
    return nuova;
}

} // namespace lumigrafo::jet
