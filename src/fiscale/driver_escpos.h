#pragma once

#include "fiscale/driver.h"
#include "fiscale/impostazioni.h"
#include "platform/trasporto.h"

#include <chrono>
#include <functional>
#include <memory>

namespace lumigrafo {

/// An ESC/POS printer over the network or on a device file. It is asked for its state before the receipt,
/// which isn't sent where it can't print, and behind the receipt for a sign that all of it is printed: only
/// then is it done. A printer given up in the middle is told to forget what it holds, so that it doesn't
/// print it later. Without the asking, done means that the printer has taken all bytes. An attempt takes no
/// longer than the limit of the settings and the few seconds of the clearing up behind it.
class DriverEscPos final : public Driver {
public:
    /// Null where there is no printer.
    using Apri = std::function<std::unique_ptr<Trasporto>()>;
    DriverEscPos(Apri apri, const ImpostazioniFiscali& impostazioni)
        : apri_(std::move(apri)), i_(impostazioni) {}

    [[nodiscard]] EsitoStampa stampa(const Lavoro& lavoro) override;
    [[nodiscard]] StatoStampante stato() override;

private:
    struct Risposte {
        bool riuscite = false;
        bool esaurimento = false; ///< paper is about to end
        std::string problema;     ///< Italian; empty where it can print
    };
    /// What is left of an attempt's time.
    class Tempo;
    [[nodiscard]] static Risposte interroga(Trasporto& t, const Tempo& tempo);
    [[nodiscard]] static EsitoStampa manda(Trasporto& t, const std::string& byte, const Tempo& tempo);
    [[nodiscard]] static EsitoStampa attendiFine(Trasporto& t, const Tempo& tempo);
    /// What the answer behind the receipt says.
    [[nodiscard]] static EsitoStampa fineDa(char byte);

    Apri apri_;
    ImpostazioniFiscali i_;
};

} // namespace lumigrafo
