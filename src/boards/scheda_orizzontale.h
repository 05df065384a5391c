#pragma once

#include "boards/scheda_sfumata.h"

namespace lumigrafo {

/// What the two horizontal boards do with the advertising panel, which lies at the third row or under it.
struct RigaOrizzontale {
    TipoVideata tipo;
    bool cresceSenzaTerzo; ///< without the third row the panel takes its height
    bool spentaConTerzo;   ///< with it there is no room
};

/// The boards of one row a department, with six or nine numbers.
class SchedaOrizzontale : public SchedaSfumata {
public:
    SchedaOrizzontale(TipoVideata tipo, const ServiziSchede& servizi);

protected:
    void vesti() override;

private:
    void togliTerzaFila();

    const RigaOrizzontale& orizzontale_;
};

} // namespace lumigrafo
