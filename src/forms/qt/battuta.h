#pragma once

#include <QString>
#include <Qt>

namespace lumigrafo {

/// Presses and releases a key in whatever has the keyboard focus, as a real keyboard would. Nothing happens
/// where nothing has it.
void batti(Qt::Key tasto, const QString& testo = {});

} // namespace lumigrafo
