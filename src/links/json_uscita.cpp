#include "links/json_uscita.h"

#include "links/json_testo.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace lumigrafo::json {

namespace {

/// Bytes of a string that are written without asking for room again, and what one of them can become.
constexpr std::size_t kTratto = 512;
constexpr std::size_t kMassimoPerByte = 6;
/// A character that begins at the end of a stretch may go on behind it; and there are the quotes.
constexpr std::size_t kMargine = 24;
static_assert(kTratto * kMassimoPerByte + kMargine <= Uscita::kSpazioMassimo);

constexpr char kEsadecimali[] = "0123456789ABCDEF";

/// A code that goes out by its number. Halves of pairs always do, and so does what no reader would see.
constexpr bool nascosto(char32_t c) {
    return c < 0x20 || (c >= 0x7F && c <= 0x9F) || c == 0x34F || (c >= 0x200B && c <= 0x200F) ||
           (c >= 0x2028 && c <= 0x202E) || c == 0x2060 || (c >= 0xD800 && c <= 0xDFFF) ||
           (c >= 0xFE01 && c <= 0xFE0F) || c == 0xFEFF || c == 0xFFFD || c > 0xFFFF;
}

/// The letter behind the backslash of a short escape, 0 for codes that have none.
constexpr char scorciatoia(char32_t c) {
    switch (c) {
    case '"':
    case '\\':
        return static_cast<char>(c);
    case '\b':
        return 'b';
    case '\f':
        return 'f';
    case '\n':
        return 'n';
    case '\r':
        return 'r';
    case '\t':
        return 't';
    default:
        return 0;
    }
}

char* scriviUnita(char* dove, char32_t unita) {
    *dove++ = '\\';
    *dove++ = 'u';
    for (int bit = 12; bit >= 0; bit -= 4)
        *dove++ = kEsadecimali[unita >> bit & 0xF];
    return dove;
}

char* scriviNascosto(char* dove, char32_t c) {
    if (c <= 0xFFFF)
        return scriviUnita(dove, c);
    dove = scriviUnita(dove, 0xD800 + ((c - 0x10000) >> 10));
    return scriviUnita(dove, 0xDC00 + ((c - 0x10000) & 0x3FF));
}

/// The mask (see otto) of the bytes in `parola` that can't be taken over as they are: beyond ASCII, controls,
/// the last of ASCII, quotes and backslashes. Each term is right below 128, and the first one has the rest.
constexpr std::uint64_t particolari(std::uint64_t parola) {
    using otto::kUni;
    const std::uint64_t virgolette = parola ^ kUni * '"', barre = parola ^ kUni * '\\';
    return (parola | (parola - kUni * 0x20) | (parola + kUni) | (virgolette - kUni) | (barre - kUni)) &
           otto::kAlti;
}

/// Takes over eight characters, or those before the first that isn't plain, and returns false then. Both ends
/// step forwards.
bool copiaOtto(char*& dove, const char*& da) {
    const std::uint64_t parola = otto::leggi(da);
    std::memcpy(dove, &parola, sizeof parola);
    const std::uint64_t fermo = particolari(parola);
    const int presi = fermo == 0 ? 8 : otto::primo(fermo);
    da += presi;
    dove += presi;
    return fermo == 0;
}

/// Takes over four to seven characters, if all are plain.
bool copiaPochi(char*& dove, const char*& da, const char* fine) {
    std::uint32_t prime, ultime; // they overlap
    std::memcpy(&prime, da, sizeof prime);
    std::memcpy(&ultime, fine - sizeof ultime, sizeof ultime);
    if (particolari(prime | std::uint64_t{ultime} << 32) != 0)
        return false;
    std::memcpy(dove, &prime, sizeof prime);
    dove += fine - da;
    da = fine;
    std::memcpy(dove - sizeof ultime, &ultime, sizeof ultime);
    return true;
}

/// Takes over plain characters; both ends step forwards.
void copiaPiani(char*& dove, const char*& da, const char* fine) {
    const std::ptrdiff_t quanti = fine - da;
    bool piani = true;
    while (piani && fine - da >= 8)
        piani = copiaOtto(dove, da);
    if (piani && da < fine && quanti >= 8) { // the last eight overlap with those before
        dove -= 8 - (fine - da);
        da = fine - 8;
        piani = copiaOtto(dove, da);
    } else if (quanti >= 4 && quanti < 8) {
        copiaPochi(dove, da, fine);
    }
    for (; da < fine; ++da) {
        const auto c = static_cast<unsigned char>(*da);
        if (c < 0x20 || c >= 0x7F || c == '"' || c == '\\')
            return;
        *dove++ = *da;
    }
}

char* scriviCodice(char* dove, char32_t c, std::string_view comeSta) {
    if (const char lettera = scorciatoia(c)) {
        *dove++ = '\\';
        *dove++ = lettera;
        return dove;
    }
    return nascosto(c) ? scriviNascosto(dove, c) : std::copy(comeSta.begin(), comeSta.end(), dove);
}

/// Writes the characters of `utf8` that begin from `i` to before `fine`; `i` steps behind them.
char* scriviTratto(char* dove, std::string_view utf8, std::size_t& i, const char* fine) {
    for (const char* da = utf8.data() + i;;) {
        copiaPiani(dove, da, fine);
        i = static_cast<std::size_t>(da - utf8.data());
        if (da >= fine)
            return dove;
        const std::size_t inizio = i;
        const char32_t c = prossimoCodice(utf8, i);
        dove = scriviCodice(dove, c, utf8.substr(inizio, i - inizio));
        da = utf8.data() + i;
    }
}

} // namespace

void Uscita::testo(std::string_view pezzo) {
    char* const dove = spazio(pezzo.size());
    avanza(std::copy(pezzo.begin(), pezzo.end(), dove));
}

void Uscita::ripeti(char c, std::size_t volte) {
    char* const dove = spazio(volte);
    avanza(std::fill_n(dove, volte, c));
}

void Uscita::stringa(std::string_view utf8) {
    std::size_t i = 0;
    char* dove = spazio(std::min(utf8.size(), kTratto) * kMassimoPerByte + kMargine);
    *dove++ = '"';
    for (;;) {
        const char* const fine = utf8.data() + std::min(utf8.size(), i + kTratto);
        dove = scriviTratto(dove, utf8, i, fine);
        if (i >= utf8.size())
            break;
        avanza(dove);
        dove = spazio(kTratto * kMassimoPerByte + kMargine);
    }
    *dove++ = '"';
    avanza(dove);
}

std::string Uscita::prendi() {
    riversa();
    return std::exchange(testo_, {});
}

void Uscita::riversa() {
    testo_.append(buffer_.data(), posizione_);
    posizione_ = 0;
}

} // namespace lumigrafo::json
