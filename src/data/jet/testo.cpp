#include "data/jet/testo.h"

#include "platform/utf8.h"

#include <algorithm>

namespace lumigrafo::jet {

namespace {

constexpr std::size_t kMinimoCompresso = 3; // characters: below them the prefix would cost more

bool comprimibile(std::u16string_view testo) {
    return testo.size() >= kMinimoCompresso &&
           std::all_of(testo.begin(), testo.end(), [](char16_t c) { return c >= 1 && c <= 0xFF; });
}

bool compresso(Vista byte) {
    return byte.lunga() >= 2 && byte.u16(0) == 0xFEFF;
}

} // namespace

std::u16string decomprimi(Vista byte) {
    std::u16string t;
    const auto b = byte.byte();
    bool stretto = compresso(byte); // one byte for each character, from one zero byte to the next
    t.reserve(stretto ? b.size() : b.size() / 2);
    for (std::size_t i = stretto ? 2 : 0, prefisso = i; i < b.size();) {
        if (prefisso && b[i] == 0) {
            stretto = !stretto;
            ++i;
        } else if (stretto) {
            t += static_cast<char16_t>(b[i++]);
        } else if (i + 1 < b.size() && !(prefisso && b[i + 1] == 0)) {
            t += static_cast<char16_t>(b[i] | b[i + 1] << 8);
            i += 2;
        } else {
            ++i; // half a character
        }
    }
    return t;
}

std::string leggiTesto(Vista byte) {
    const auto b = byte.byte();
    const bool diritto = compresso(byte) && std::none_of(b.begin() + 2, b.end(),
                                                         [](std::uint8_t c) { return c == 0 || c >= 0x80; });
    return diritto ? std::string(byte.testo().substr(2)) : aUtf8(decomprimi(byte));
}

std::string aUtf8(std::u16string_view testo) {
    std::string t;
    t.reserve(testo.size());
    for (std::size_t i = 0; i < testo.size(); ++i) {
        char32_t c = testo[i];
        const bool coppia =
            c >= 0xD800 && c < 0xDC00 && i + 1 < testo.size() && (testo[i + 1] & 0xFC00) == 0xDC00;
        if (coppia)
            c = 0x10000 + ((c & 0x3FF) << 10) + (testo[++i] & 0x3FF);
        accodaCarattere(t, c);
    }
    return t;
}

std::u16string aUtf16(std::string_view utf8) {
    std::u16string t;
    for (std::size_t i = 0; i < utf8.size();) {
        const char32_t c = prossimoCarattere(utf8, i);
        if (c < 0x10000) {
            t += static_cast<char16_t>(c);
        } else {
            t += static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10));
            t += static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
        }
    }
    return t;
}

std::string scriviTesto(std::string_view utf8, bool puoComprimere) {
    const std::u16string t = aUtf16(utf8);
    const bool stretto = puoComprimere && comprimibile(t);
    std::string byte = stretto ? "\xFF\xFE" : "";
    for (const char16_t c : t) {
        byte += static_cast<char>(c & 0xFF);
        if (!stretto)
            byte += static_cast<char>(c >> 8);
    }
    // A plain text that happens to begin like a compressed one (U+FEFF) would be read as such.
    while (!stretto && byte.starts_with("\xFF\xFE"))
        byte.erase(0, 2);
    return byte;
}

} // namespace lumigrafo::jet
