#pragma once

#include "platform/schermi.h"

#include <cstdint>
#include <optional>

namespace lumigrafo {

/// One monitor as the placement looks at it; twips of the desktop.
struct InfoMonitor {
    std::int32_t hMonitor; ///< Schermo::numero
    Twip MonLeft, MonRight, MonTop, MonBottom;
    Twip WorkLeft, WorkRight, WorkTop, WorkBottom;
    Twip MonHeight, MonWidth, WorkHeight, WorkWidth;
    bool Primario = false;
};

/// The monitor that a rectangle stands on, the one that shows most of it; none where it stands beside all.
[[nodiscard]] std::optional<InfoMonitor> monitorDi(const Schermi& schermi, const Rettangolo& finestra);

/// The monitor of a window, the primary one where it stands on none. Throws Guasto 9 on a desktop without
/// monitors.
[[nodiscard]] InfoMonitor LeggiInfoMonitor(const Schermi& schermi, const Rettangolo& finestra);

/// Where a window stands that fills the work area of the monitor on which `riferimento` stands.
[[nodiscard]] Rettangolo AdattaAlMonitor(const Schermi& schermi, const Rettangolo& riferimento);

} // namespace lumigrafo
