#pragma once

#include "platform/misure.h"

#include <vector>

namespace lumigrafo {

/// One monitor of the desktop, in twips of the desktop's own coordinates.
struct Schermo {
    Rettangolo tutto;  ///< the monitor
    Rettangolo lavoro; ///< less task bars
    bool primario = false;
};

/// The monitors as they stand now.
class Schermi {
public:
    virtual ~Schermi() = default;
    [[nodiscard]] virtual std::vector<Schermo> elenco() const = 0;
};

} // namespace lumigrafo
