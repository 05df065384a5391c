#pragma once

#include "data/dao.h"
#include "forms/controlli.h"
#include "platform/avvisi.h"
#include "platform/messaggi.h"
#include "platform/pompa.h"

#include <chrono>
#include <functional>
#include <string_view>

namespace lumigrafo {

/// What the filler works with; all of it outlives the window.
struct ServiziInserimento {
    Workspace& Ws;
    Database& Db;
    Pompa& pompa;
    Avvisi& avvisi;
    Messaggi& messaggi;
    /// A clock that only goes forward; the progress is shown by it.
    std::function<std::chrono::milliseconds()> cronometro = tempoMonotono;

    [[nodiscard]] static std::chrono::milliseconds tempoMonotono() {
        return std::chrono::duration_cast<std::chrono::milliseconds>(
            std::chrono::steady_clock::now().time_since_epoch());
    }
};

/// `frmInserisciNumeri`: empties the queue and fills it with test numbers up to 999, for stations without
/// cash desks.
class InserisciNumeri {
public:
    /// `chiudi` lets the caller of the window go on; it must not destroy this object.
    InserisciNumeri(const ServiziInserimento& servizi, std::function<void()> chiudi);

    [[nodiscard]] Controlli& controlli() { return controlli_; }
    /// A failure of the archive throws Guasto; what was written until then stays.
    void clic(std::string_view nome, int indice);
    void mostrata() { controlli_("txtNumero").SetFocus(); }
    /// `ridisegna` paints the window at once: no event is let through while the numbers are written.
    void allaVista(std::function<void()> ridisegna) { ridisegna_ = std::move(ridisegna); }

private:
    void cmdOK();
    void inserisci(int primo);
    void avanza(int primo, int fatto);

    ServiziInserimento s_;
    std::function<void()> chiudi_;
    std::function<void()> ridisegna_;
    Controlli controlli_;
};

} // namespace lumigrafo
