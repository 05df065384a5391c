#pragma once

#include <QFont>
#include <QString>

namespace lumigrafo {

/// The font of that name, `pixel` high. A font that isn't installed is replaced by its twin in measures or
/// weight, since the system's own choice loses the weight of the heavy and condensed ones; a name that no
/// font bears gets the program's plain sans serif.
[[nodiscard]] QFont carattere(const QString& nome, int pixel, bool grassetto = false, bool corsivo = false);

} // namespace lumigrafo
