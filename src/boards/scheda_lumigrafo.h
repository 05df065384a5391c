#pragma once

#include "boards/scheda.h"

namespace lumigrafo {

/// The standard board, `frmLumigrafo`: three panels, one a department. A department that isn't in use stays
/// on show with its colours and an empty title.
class SchedaLumigrafo : public Scheda {
public:
    explicit SchedaLumigrafo(const ServiziSchede& servizi) : Scheda(TipoVideata::frmLumigrafo, servizi) {}

protected:
    void vesti() override;
};

} // namespace lumigrafo
