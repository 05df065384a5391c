#include "links/json_testo.h"

#include "platform/utf8.h"

namespace lumigrafo::json {

namespace {

constexpr std::size_t kByteMezzo = 3;

/// Code of the half of a pair that begins at `posizione`, 0 if there is none.
char32_t mezzo(std::string_view testo, std::size_t posizione) {
    if (testo.size() - posizione < kByteMezzo)
        return 0;
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(testo[posizione + i]); };
    if (byte(0) != 0xED || byte(1) < 0xA0 || byte(1) > 0xBF || (byte(2) & 0xC0) != 0x80)
        return 0;
    return 0xD000U | (byte(1) & 0x3FU) << 6 | (byte(2) & 0x3FU);
}

constexpr bool alto(char32_t c) {
    return c >= 0xD800 && c <= 0xDBFF;
}
constexpr bool basso(char32_t c) {
    return c >= 0xDC00 && c <= 0xDFFF;
}

/// End of the well-formed characters from `posizione`.
std::size_t fineBuoni(std::string_view testo, std::size_t posizione) {
    while (posizione < testo.size()) {
        std::size_t dopo = posizione;
        const char32_t c = prossimoCodice(testo, dopo);
        const bool perso = c == kCarattereIgnoto && dopo - posizione == 1;
        if (perso || alto(c) || basso(c))
            break;
        posizione = dopo;
    }
    return posizione;
}

} // namespace

char32_t prossimoCodice(std::string_view testo, std::size_t& posizione) {
    if (const auto ascii = static_cast<unsigned char>(testo[posizione]); ascii < 0x80) {
        ++posizione;
        return ascii;
    }
    if (const char32_t m = mezzo(testo, posizione)) {
        posizione += kByteMezzo;
        return m;
    }
    return prossimoCarattere(testo, posizione);
}

std::size_t unita(std::string_view testo) {
    std::size_t quante = 0;
    for (std::size_t i = 0; i < testo.size();)
        quante += prossimoCodice(testo, i) > 0xFFFF ? 2 : 1;
    return quante;
}

void accodaUnita(std::string& testo, char16_t unita) {
    if (!alto(unita) && !basso(unita)) {
        accodaCarattere(testo, unita);
        return;
    }
    const std::size_t n = testo.size();
    const char32_t prima = n >= kByteMezzo ? mezzo(testo, n - kByteMezzo) : 0;
    if (basso(unita) && alto(prima)) {
        testo.resize(n - kByteMezzo);
        accodaCarattere(testo, 0x10000 + ((prima - 0xD800) << 10) + (unita - 0xDC00U));
        return;
    }
    testo += '\xED';
    testo += static_cast<char>(0x80 | (unita >> 6 & 0x3F));
    testo += static_cast<char>(0x80 | (unita & 0x3F));
}

void accoda(std::string& testo, std::string_view pezzo) {
    for (std::size_t i = 0; i < pezzo.size();) {
        const std::size_t buoni = fineBuoni(pezzo, i);
        testo.append(pezzo, i, buoni - i);
        i = buoni;
        if (i < pezzo.size())
            accodaUnita(testo, static_cast<char16_t>(prossimoCodice(pezzo, i)));
    }
}

} // namespace lumigrafo::json
