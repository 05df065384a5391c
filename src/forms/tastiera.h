#pragma once

#include "forms/scala.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

/// The on-screen keyboard apart from its widget: its keys, what each does now, and where each stands.
namespace lumigrafo {

enum class AzioneTasto : std::uint8_t {
    Scrive,
    Cancella, ///< the character before the cursor
    Invio,
    Sinistra,
    Destra,
    Su,
    Giu,
    Maiuscole, ///< once for one capital, twice for capitals until the next touch
    Simboli,   ///< the page of signs
    Lettere,   ///< back to the page of letters
};

/// One key. Texts are UTF-8.
struct Tasto {
    std::string_view basso{}; ///< what it writes
    std::string_view alto{};  ///< what it writes with capitals on; empty: the same
    AzioneTasto azione = AzioneTasto::Scrive;
    double larghezza = 1; ///< in keys; the rows of a page are all as wide
};
using RigaTasti = std::span<const Tasto>;

/// What a key press is to the box with the focus.
struct Battuta {
    AzioneTasto azione; ///< none that changes the keyboard itself
    std::string_view testo;
};

/// A key and its place in the keyboard, pixels.
struct TastoPosto {
    const Tasto* tasto;
    RettangoloPixel posto;
};

class Tastiera {
public:
    enum class Forma : std::uint8_t { Completa, Numerica };
    enum class StatoMaiuscole : std::uint8_t { No, Una, Fisse };

    explicit Tastiera(Forma forma);

    /// The page on show, from the top.
    [[nodiscard]] std::span<const RigaTasti> righe() const { return righe_; }
    [[nodiscard]] StatoMaiuscole maiuscole() const { return maiuscole_; }
    /// What the key would write now; empty for a key that doesn't write.
    [[nodiscard]] std::string_view scritta(const Tasto& tasto) const;
    /// The operator touches a key of the page on show. Nothing where it changes the keyboard alone.
    std::optional<Battuta> premi(const Tasto& tasto);
    /// The keys of the page in a rectangle of that size, `spazio` pixels apart.
    [[nodiscard]] std::vector<TastoPosto> disponi(int larghezza, int altezza, int spazio) const;

private:
    std::span<const RigaTasti> righe_;
    StatoMaiuscole maiuscole_ = StatoMaiuscole::No;
};

/// True for keys that go on as long as they are held.
[[nodiscard]] constexpr bool siRipete(AzioneTasto azione) {
    return azione == AzioneTasto::Cancella || azione == AzioneTasto::Sinistra ||
           azione == AzioneTasto::Destra || azione == AzioneTasto::Su || azione == AzioneTasto::Giu;
}

} // namespace lumigrafo
