#pragma once

#include "announce/finestra_fiscale.h"

namespace lumigrafo {

/// `frmFiscale` on the active window's monitor. It takes neither the keyboard nor a touch: a
/// scanner's keys go where they went before. It has been painted when `mostra` returns, since the console
/// blocks then; other events than the operator's may run meanwhile.
class FrmFiscaleQt final : public FinestraFiscale {
public:
    [[nodiscard]] std::unique_ptr<Mostrata> mostra() override;
};

} // namespace lumigrafo
