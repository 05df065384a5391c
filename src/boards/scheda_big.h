#pragma once

#include "boards/scheda.h"

namespace lumigrafo {

/// The board of one department with one very large number. Its newest number blinks by the colours of its
/// box, which flashes white, and is always to be seen.
class SchedaBig : public Scheda {
public:
    explicit SchedaBig(const ServiziSchede& servizi)
        : Scheda(TipoVideata::frmLumigrafo1RepartoBig, servizi) {}

protected:
    void vesti() override;
    void faseLampeggio(int slot, bool usuale) override;

private:
    void coloraCasella(int n);

    Colore ColoreTestoNumero;
    Colore ColoreSfondoNumero;
};

} // namespace lumigrafo
