#include "settings/ini/cp1252.h"

#include "platform/utf8.h"

#include <algorithm>
#include <array>

namespace lumigrafo {

namespace {

constexpr unsigned kPrimo = 0x80;

/// The characters of the bytes 80 to 9F; all others bear the number of their byte.
// clang-format off
constexpr std::array<char16_t, 32> kSpeciali = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
// clang-format on

char aByte(char32_t carattere) {
    if (carattere < kPrimo || (carattere >= kPrimo + kSpeciali.size() && carattere <= 0xFF))
        return static_cast<char>(carattere);
    const auto posto = std::find(kSpeciali.begin(), kSpeciali.end(), carattere);
    return posto == kSpeciali.end() ? '?' : static_cast<char>(kPrimo + (posto - kSpeciali.begin()));
}

} // namespace

std::string daCp1252(std::string_view byte) {
    std::string utf8;
    for (const char c : byte) {
        const auto b = static_cast<unsigned char>(c);
        const bool speciale = b >= kPrimo && b < kPrimo + kSpeciali.size();
        accodaCarattere(utf8, speciale ? kSpeciali[b - kPrimo] : b);
    }
    return utf8;
}

std::string aCp1252(std::string_view utf8) {
    std::string byte;
    for (std::size_t i = 0; i < utf8.size();)
        byte += aByte(prossimoCarattere(utf8, i));
    return byte;
}

} // namespace lumigrafo
