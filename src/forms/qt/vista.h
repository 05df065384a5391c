#pragma once

#include "forms/controlli.h"
#include "forms/scala.h"

#include <QFont>
#include <QKeySequence>

#include <algorithm>

class QWidget;

namespace lumigrafo {

/// What the window's present size makes of a control's measures.
struct Resa {
    Scala scala;
    QFont carattere; ///< the control's, at the window's size
    int raggio;      ///< of rounded corners, pixels
};

/// Width of an edge line beside corners of that rounding: one pixel at the design, more on a large screen.
[[nodiscard]] inline double filoCon(int raggio) {
    constexpr double kRaggioDisegno = 7;
    return std::max(1.0, raggio / kRaggioDisegno);
}

/// The widget side of one control.
class Vista {
public:
    virtual ~Vista() = default;
    /// Shows texts, type, colours and picture as they stand now, and repaints no more than the widget itself.
    /// Position, visibility, enabling and order are the window's work.
    virtual void mostra(const Controllo& controllo, const Resa& resa) = 0;
};

/// The keys that press the control; none where its layout names no letter.
[[nodiscard]] inline QKeySequence scorciatoia(const Controllo& c) {
    const char lettera = c.disegno().scelta;
    return lettera ? QKeySequence(QKeyCombination(Qt::ALT, static_cast<Qt::Key>(Qt::Key_A + (lettera - 'a'))))
                   : QKeySequence();
}

} // namespace lumigrafo
