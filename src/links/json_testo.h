#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

/// JSON thinks in 16-bit characters, texts in memory are UTF-8. A half of a surrogate pair without its other
/// half, which an escape can make, is held as the three bytes that UTF-8's scheme would give it.
namespace lumigrafo::json {

/// As prossimoCarattere, but a lone half of a pair comes out as it is.
[[nodiscard]] char32_t prossimoCodice(std::string_view testo, std::size_t& posizione);

/// 16-bit characters in a text; a stray byte counts as one.
[[nodiscard]] std::size_t unita(std::string_view testo);

/// Appends one 16-bit character. A low half behind a high one joins it to one character.
void accodaUnita(std::string& testo, char16_t unita);

/// Appends a piece of text. Stray bytes become kCarattereIgnoto and neighbouring halves are joined, so that
/// two texts that are written alike are alike in memory.
void accoda(std::string& testo, std::string_view pezzo);

/// Eight bytes looked at in one go: in the masks the top bit of a byte is set where the byte is meant. Above
/// the first such byte a mask may be wrong, so only its first one counts.
namespace otto {
inline constexpr std::uint64_t kUni = 0x0101010101010101;
inline constexpr std::uint64_t kAlti = 0x8080808080808080;

[[nodiscard]] inline std::uint64_t leggi(const char* da) {
    std::uint64_t parola;
    std::memcpy(&parola, da, sizeof parola);
    return parola;
}
[[nodiscard]] constexpr std::uint64_t minoriDi(std::uint64_t parola, unsigned char limite) {
    return (parola - kUni * limite) & ~parola & kAlti;
}
[[nodiscard]] constexpr std::uint64_t ugualiA(std::uint64_t parola, unsigned char valore) {
    return minoriDi(parola ^ (kUni * valore), 1);
}
/// Place of the first byte meant; 0 where the machine's byte order hides it, which costs speed alone.
[[nodiscard]] constexpr int primo(std::uint64_t maschera) {
    return std::endian::native == std::endian::little ? std::countr_zero(maschera) / 8 : 0;
}
} // namespace otto

} // namespace lumigrafo::json
