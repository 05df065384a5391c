#pragma once

#include "announce/componente_fiscale.h"
#include "fiscale/driver_programma.h"
#include "fiscale/porte.h"

namespace lumigrafo {

/// Makes the component that prints by itself: to a file, to a printer, through another program.
class FabbricaComponente final : public FabbricaFiscale {
public:
    explicit FabbricaComponente(const PorteComponente& porte) : porte_(porte) {}
    [[nodiscard]] std::unique_ptr<ComponenteFiscale> creaComponente() override;
    [[nodiscard]] std::unique_ptr<ConfiguraFiscale> creaConfigura() override;

private:
    PorteComponente porte_;
};

} // namespace lumigrafo
