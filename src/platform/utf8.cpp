#include "platform/utf8.h"

namespace lumigrafo {

namespace {

/// Bytes behind the first one of a character, -1 where `primo` begins none.
int coda(unsigned char primo) {
    if (primo < 0x80)
        return 0;
    if (primo < 0xC2) // a continuation, or the head of an overlong form
        return -1;
    return primo < 0xE0 ? 1 : primo < 0xF0 ? 2 : primo < 0xF5 ? 3 : -1;
}

bool scalare(char32_t c) {
    return c <= 0x10FFFF && !(c >= 0xD800 && c <= 0xDFFF);
}

} // namespace

char32_t prossimoCarattere(std::string_view utf8, std::size_t& posizione) {
    const std::size_t inizio = posizione++;
    const auto primo = static_cast<unsigned char>(utf8[inizio]);
    const int altri = coda(primo);
    if (altri == 0)
        return primo;
    if (altri < 0 || utf8.size() - inizio <= static_cast<std::size_t>(altri))
        return kCarattereIgnoto;
    char32_t c = primo & (0x3F >> altri);
    for (int i = 1; i <= altri; ++i) {
        const auto b = static_cast<unsigned char>(utf8[inizio + static_cast<std::size_t>(i)]);
        if ((b & 0xC0) != 0x80)
            return kCarattereIgnoto;
        c = (c << 6) | (b & 0x3F);
    }
    const bool troppoLungo = (altri == 2 && c < 0x800) || (altri == 3 && c < 0x10000);
    if (troppoLungo || !scalare(c))
        return kCarattereIgnoto;
    posizione = inizio + 1 + static_cast<std::size_t>(altri);
    return c;
}

void accodaCarattere(std::string& utf8, char32_t carattere) {
    const char32_t c = scalare(carattere) ? carattere : kCarattereIgnoto;
    const auto byte = [&utf8](char32_t b) { utf8 += static_cast<char>(b); };
    const auto seguito = [&byte, c](int spostamento) { byte(0x80 | ((c >> spostamento) & 0x3F)); };
    if (c < 0x80) {
        byte(c);
    } else if (c < 0x800) {
        byte(0xC0 | (c >> 6));
        seguito(0);
    } else if (c < 0x10000) {
        byte(0xE0 | (c >> 12));
        seguito(6);
        seguito(0);
    } else {
        byte(0xF0 | (c >> 18));
        seguito(12);
        seguito(6);
        seguito(0);
    }
}

} // namespace lumigrafo
