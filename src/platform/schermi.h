#pragma once

#include "platform/misure.h"

#include <cstdint>
#include <vector>

namespace lumigrafo {

/// One monitor of the desktop, in twips of the desktop's own coordinates.
struct Schermo {
    Rettangolo tutto;  ///< the monitor
    Rettangolo lavoro; ///< less task bars
    bool primario = false;
    /// What the window system knows it by, from 1; good until the desktop's layout changes.
    std::int32_t numero = 0;
};

/// The monitors as they stand now.
class Schermi {
public:
    virtual ~Schermi() = default;
    [[nodiscard]] virtual std::vector<Schermo> elenco() const = 0;
};

} // namespace lumigrafo
