#pragma once

#include "fiscale/porte.h"

namespace lumigrafo {

/// The component's windows on the screen, in the middle of the operator's monitor. Needs a QApplication and
/// the resources.
class FinestreComponenteQt final : public FinestreComponente {
public:
    void mostra(UtilitaFiscale& utilita) override;
    void mostra(ConfigurazioneFiscale& configurazione) override;
};

} // namespace lumigrafo
