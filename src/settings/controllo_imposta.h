#pragma once

#include "forms/controlli.h"

#include <optional>
#include <string_view>

/// What is tested in the settings dialog before anything is saved.
namespace lumigrafo {

/// Positions in the list of board types.
inline constexpr int kVerticale = 0;
inline constexpr int kOrizzontale = 1;
inline constexpr int kUnRepartoBig = 3;
inline constexpr int kAvantiProssimo = 4;

struct DifettoImposta {
    std::string_view messaggio;
    bool fuocoSulTipo = false; ///< the list of board types gets the focus
};

/// The first test that fires, in their order; nothing where the settings can be saved. A blank number of cash
/// desks becomes 0 in its box once all tests before its own have passed.
[[nodiscard]] std::optional<DifettoImposta> difettoDi(Controlli& controlli);

/// A key's character in a box of digits: a full stop is a comma, and what is no number by itself is 0, no
/// character.
[[nodiscard]] char32_t FiltroCifra(char32_t carattere);

} // namespace lumigrafo
