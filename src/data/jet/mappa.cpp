#include "data/jet/mappa.h"

#include <algorithm>

namespace lumigrafo::jet {

namespace {

/// Appends the pages from `da` up to `fine` whose bits are set; `base` is the page of the first bit.
void accoda(std::vector<std::uint32_t>& pagine, std::span<const std::uint8_t> bit, std::uint64_t base,
            std::uint32_t da, std::uint32_t fine) {
    for (std::size_t j = 0; j < bit.size() && base + 8 * j < fine; ++j)
        for (unsigned k = 0; bit[j] != 0 && k < 8; ++k)
            if (const std::uint64_t p = base + 8 * j + k; (bit[j] >> k & 1) && p >= da && p < fine)
                pagine.push_back(static_cast<std::uint32_t>(p));
}

bool acceso(std::span<const std::uint8_t> bit, std::uint32_t i) {
    return i / 8 < bit.size() && (bit[i / 8] >> (i % 8) & 1);
}

} // namespace

Vista Mappa::riga() const {
    // The page stays in memory: it is the cache's, or the transaction's own.
    const Vista r = brutaA(pagine_, posizione_).byte;
    if (r.lunga() < kTestaRiga || r.u8(0) > APagine)
        throw danno(posizione_.pagina, "la riga " + std::to_string(posizione_.slot) + " non è una mappa");
    return r;
}

std::vector<std::uint32_t> Mappa::tutte() const {
    return elenco(0, pagine_.quante());
}

std::vector<std::uint32_t> Mappa::oltreLaFine() const {
    return elenco(pagine_.quante(), Pagine::kMassime);
}

std::vector<std::uint32_t> Mappa::elenco(std::uint32_t da, std::uint32_t fine) const {
    std::vector<std::uint32_t> v;
    const Vista r = riga();
    if (r.u8(0) == InRiga) {
        accoda(v, r.da(kTestaRiga).byte(), r.u32(1), da, fine);
        return v;
    }
    for (std::size_t i = 0; 1 + 4 * (i + 1) <= r.lunga(); ++i)
        if (const std::uint32_t p = r.u32(1 + 4 * i))
            accoda(v, pagine_.leggi(p, TipoPagina::Mappa)->vista(p).da(kTestaPagina).byte(),
                   std::uint64_t{kBitPerPagina} * i, da, fine);
    return v;
}

std::vector<std::uint32_t> Mappa::pagineDiBit() const {
    std::vector<std::uint32_t> v;
    const Vista r = riga();
    if (r.u8(0) == APagine)
        for (std::size_t i = 1; i + 4 <= r.lunga(); i += 4)
            if (const std::uint32_t p = r.u32(i))
                v.push_back(p);
    return v;
}

bool Mappa::contiene(std::uint32_t numero) const {
    const Vista r = riga();
    if (r.u8(0) == InRiga)
        return numero >= r.u32(1) && acceso(r.da(kTestaRiga).byte(), numero - r.u32(1));
    const std::size_t posto = 1 + 4 * std::size_t{numero / kBitPerPagina};
    const std::uint32_t p = posto + 4 <= r.lunga() ? r.u32(posto) : 0;
    return p != 0 && acceso(pagine_.leggi(p, TipoPagina::Mappa)->vista(p).da(kTestaPagina).byte(),
                            numero % kBitPerPagina);
}

} // namespace lumigrafo::jet
