#pragma once

#include "fiscale/driver.h"
#include "fiscale/impostazioni.h"
#include "platform/esecutore.h"

#include <string>

namespace lumigrafo {

/// Where the archive lies, as the external program is told.
struct PostoArchivio {
    std::string cartella;
    bool locale = false;
};

/// An external program that prints: one JSON object to its standard input, one from its standard output. Its
/// word that it is done counts only where it ended by itself with code 0; one that is still running at the
/// limit is killed.
class DriverProgramma final : public Driver {
public:
    DriverProgramma(Esecutore& esecutore, const ImpostazioniFiscali& impostazioni, PostoArchivio archivio)
        : esecutore_(esecutore), i_(impostazioni), archivio_(std::move(archivio)) {}

    [[nodiscard]] EsitoStampa stampa(const Lavoro& lavoro) override;
    [[nodiscard]] StatoStampante stato() override;

private:
    [[nodiscard]] std::optional<FineProgramma> chiama(const std::string& richiesta);

    Esecutore& esecutore_;
    ImpostazioniFiscali i_;
    PostoArchivio archivio_;
};

} // namespace lumigrafo
