#pragma once

#include "fiscale/impostazioni.h"
#include "fiscale/scontrino.h"
#include "platform/orologio.h"

#include <string>
#include <vector>

namespace lumigrafo {

/// One printed line: text of as many characters as a line has at the most, blanks in it where it is centred.
/// UTF-8, no control characters.
struct RigaModulo {
    std::string testo;
    bool grande = false; ///< twice as high, and bold

    friend bool operator==(const RigaModulo&, const RigaModulo&) = default;
};
using Modulo = std::vector<RigaModulo>;

/// A receipt laid out for paper. `copia`: it was issued before, and the paper says so. Where the lines don't
/// add up to the receipt's total, a line tells the difference: the total is the archive's.
[[nodiscard]] Modulo impagina(const Scontrino& scontrino, const ImpostazioniFiscali& impostazioni,
                              const DataOra& adesso, bool copia);

/// What the test of the settings prints: their lines, the alphabet's difficult letters, the euro sign.
[[nodiscard]] Modulo moduloDiProva(const ImpostazioniFiscali& impostazioni, const DataOra& adesso);

} // namespace lumigrafo
