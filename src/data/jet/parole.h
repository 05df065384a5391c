#pragma once

#include "data/jet/intestazione.h"

#include <array>
#include <cstdint>

namespace lumigrafo::jet {

/// The commit words of page 0, one for each user number: they change with each commit, and are 0 while their
/// station writes. Two equal readings with no writer in them frame one state of the archive.
struct Parole {
    static constexpr std::uint16_t kScrive = 0, kDanno = 1, kPrima = 0x0100;

    std::array<std::uint8_t, kByteParole> byte{};

    [[nodiscard]] std::uint16_t di(unsigned utente) const {
        return static_cast<std::uint16_t>(byte[2 * utente] | byte[2 * utente + 1] << 8);
    }
    void metti(unsigned utente, std::uint16_t parola) {
        byte[2 * utente] = static_cast<std::uint8_t>(parola);
        byte[2 * utente + 1] = static_cast<std::uint8_t>(parola >> 8);
    }
    /// The word behind this one; never one of those with a meaning.
    [[nodiscard]] static std::uint16_t successiva(std::uint16_t parola) {
        return parola < kPrima || parola == 0xFFFF ? kPrima : static_cast<std::uint16_t>(parola + 1);
    }
    /// One number for all of them, other after each commit.
    [[nodiscard]] std::int64_t impronta() const {
        std::uint64_t h = 0xcbf29ce484222325U;
        for (const std::uint8_t b : byte)
            h = (h ^ b) * 0x100000001b3U;
        return static_cast<std::int64_t>(h >> 1);
    }
    friend bool operator==(const Parole&, const Parole&) = default;
};

} // namespace lumigrafo::jet
