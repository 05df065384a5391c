#pragma once

#include "forms/qt/finestra.h"
#include "settings/qt/finestra_modale.h"

#include <QKeyEvent>

#include <utility>

namespace lumigrafo {

/// Shows one of the windows of settings, modal: makes its logic from these arguments and what closes it, and
/// hands it whatever the operator does that it has a routine for. Returns when the window is gone.
template <typename Logica, typename... Argomenti>
void mostraDialogo(Argomenti&&... argomenti) {
    FinestraModale modale;
    Logica logica(std::forward<Argomenti>(argomenti)..., [&modale] { modale.fine(); });
    Finestra finestra(logica.controlli(), nullptr, Qt::Dialog);
    finestra.alClic([&](const Controllo& c) { logica.clic(c.disegno().nome, c.disegno().indice); });
    if constexpr (requires { logica.cambio({}, 0); })
        finestra.alCambioValore(
            [&](const Controllo& c) { logica.cambio(c.disegno().nome, c.disegno().indice); });
    if constexpr (requires { logica.allaVista([] {}); })
        logica.allaVista([&finestra] { finestra.repaint(); });
    modale.esegui(finestra, [&] {
        if constexpr (requires { logica.mostrata(); })
            logica.mostrata();
    });
}

} // namespace lumigrafo
