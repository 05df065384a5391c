#pragma once

#include "fiscale/driver.h"
#include "fiscale/impostazioni.h"
#include "platform/esecutore.h"
#include "platform/orologio.h"

namespace lumigrafo {

/// An ESC/POS printer behind a raw queue of the print system. The receipt is done when its job has left the
/// queue and the print system says that it was printed; a job that still stands there at the limit is taken
/// out of it.
class DriverCoda final : public Driver {
public:
    DriverCoda(Esecutore& esecutore, Orologio& orologio, const ImpostazioniFiscali& impostazioni)
        : esecutore_(esecutore), orologio_(orologio), i_(impostazioni) {}

    [[nodiscard]] EsitoStampa stampa(const Lavoro& lavoro) override;
    [[nodiscard]] StatoStampante stato() override;

private:
    enum class Lavorazione { InCoda, Uscito, Ignota };
    [[nodiscard]] std::optional<FineProgramma> chiama(std::vector<std::string> parole,
                                                      std::string_view ingresso = {});
    [[nodiscard]] Lavorazione lavorazione(const std::string& lavoro);
    [[nodiscard]] EsitoStampa comeUscito(const std::string& lavoro);

    Esecutore& esecutore_;
    Orologio& orologio_;
    ImpostazioniFiscali i_;
};

} // namespace lumigrafo
