#pragma once

#include "boards/scheda_sfumata.h"

namespace lumigrafo {

/// The boards of one department with six or nine numbers.
class SchedaUnReparto : public SchedaSfumata {
public:
    SchedaUnReparto(TipoVideata tipo, const ServiziSchede& servizi)
        : SchedaSfumata(tipo, SfondoCaselle::Base, servizi) {}

protected:
    void vesti() override;
};

} // namespace lumigrafo
