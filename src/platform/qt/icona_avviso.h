#pragma once

#include "platform/avvisi.h"

class QPainter;
class QRect;

namespace lumigrafo {

/// The sign of a message box, as large as fits into the area; nothing for `Icona::Nessuna`.
void disegnaIcona(QPainter& pennello, Icona icona, const QRect& area);

} // namespace lumigrafo
