#pragma once

#include "platform/avvisi.h"
#include "platform/esecutore.h"
#include "platform/orologio.h"
#include "platform/trasporto.h"

namespace lumigrafo {

class ConfigurazioneFiscale;
class UtilitaFiscale;

/// Shows the component's windows, modal: each call returns when its window is gone.
class FinestreComponente {
public:
    virtual ~FinestreComponente() = default;
    virtual void mostra(UtilitaFiscale& utilita) = 0;
    virtual void mostra(ConfigurazioneFiscale& configurazione) = 0;
};

/// What the component works through; all of it outlives its objects.
struct PorteComponente {
    Orologio& orologio;
    Avvisi& avvisi;
    Trasporti& trasporti;
    Esecutore& esecutore;
    FinestreComponente& finestre;
};

} // namespace lumigrafo
