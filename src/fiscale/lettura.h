#pragma once

#include "data/dao.h"
#include "fiscale/scontrino.h"

#include <cstdint>

namespace lumigrafo {

/// The receipt of that identifier with its lines, as the archive holds them now. Throws Guasto: kAssente or
/// kStornato with a text for the operator, or a failure of the archive.
[[nodiscard]] Scontrino leggiScontrino(Database& db, std::int32_t id);

namespace guastiFiscali {
inline constexpr int kAssente = 1001;    ///< the archive has no such receipt any more
inline constexpr int kStornato = 1002;   ///< it was cancelled
inline constexpr int kInModifica = 1003; ///< another station keeps on changing it
} // namespace guastiFiscali

} // namespace lumigrafo
