#pragma once

#include "boards/scheda.h"

namespace lumigrafo {

/// The board with a picture of the organiser's own behind six numbers of the first department.
class SchedaPerson : public Scheda {
public:
    explicit SchedaPerson(const ServiziSchede& servizi) : Scheda(TipoVideata::frmLumigrafoPerson, servizi) {}

    /// Lets the operator choose another picture, which is kept for later runs. Lets events through.
    void DoppioClicSfondo() override;

protected:
    void vesti() override;
    /// Shows the picture of the settings. One that is gone or no picture throws Guasto 53 or 481.
    void attivata() override;
};

} // namespace lumigrafo
