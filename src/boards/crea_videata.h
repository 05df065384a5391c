#pragma once

#include "boards/scheda.h"
#include "boards/videata.h"

#include <memory>

namespace lumigrafo {

/// The logic of one board, not yet loaded.
[[nodiscard]] std::unique_ptr<Scheda> creaScheda(TipoVideata tipo, const ServiziSchede& servizi);

/// The board in use for the whole run, not yet loaded. What the services refer to outlives it.
[[nodiscard]] std::unique_ptr<Videata> creaVideata(TipoVideata tipo, const ServiziSchede& servizi,
                                                   FabbricaFinestre finestre);

} // namespace lumigrafo
