#pragma once

#include "platform/colore.h"

#include <QColor>
#include <QSize>

#include <algorithm>

class QApplication;

/// How the program looks where a layout doesn't say it: calm light colours and controls made for fingers.
namespace lumigrafo::aspetto {

inline constexpr QColor kFinestra{243, 245, 247};
inline constexpr QColor kCarta{255, 255, 255};
inline constexpr QColor kInchiostro{31, 41, 51};
inline constexpr QColor kBottone{226, 233, 240};
inline constexpr QColor kBordo{190, 202, 213};
inline constexpr QColor kRigo{217, 224, 230};
inline constexpr QColor kAccento{47, 109, 168};
inline constexpr QColor kFuoco{24, 61, 99}; ///< round what has the focus
inline constexpr QColor kQuieto{82, 96, 109};

/// Least height of what a finger touches, device-independent pixels.
inline constexpr int kTocco = 48;

/// How much larger things are drawn in an area than on the smallest screen that the designs are meant for: 1
/// or more.
[[nodiscard]] inline double ingrandimento(QSize area) {
    constexpr double kLarghezza = 1024, kAltezza = 768; // device-independent pixels
    return std::max(1.0, std::min(area.width() / kLarghezza, area.height() / kAltezza));
}

/// Style, palette, font, style sheet and icon of the whole program. Called once, before the first window.
void applica(QApplication& applicazione);

[[nodiscard]] inline QColor colore(Colore c) {
    return {c.rosso(), c.verde(), c.blu()};
}

} // namespace lumigrafo::aspetto
