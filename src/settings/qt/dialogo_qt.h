#pragma once

#include "forms/qt/finestra.h"
#include "settings/qt/finestra_modale.h"

#include <QKeyEvent>

#include <utility>

namespace lumigrafo {

/// True for a key that gives a text box a character. Delete and the tabulator have one only in Qt.
[[nodiscard]] inline bool portaCarattere(const QKeyEvent& evento) {
    return !evento.text().isEmpty() && evento.key() != Qt::Key_Delete && evento.key() != Qt::Key_Tab &&
           evento.key() != Qt::Key_Backtab;
}

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
    if constexpr (requires { logica.clicDestro({}, 0); })
        finestra.alClicDestro(
            [&](const Controllo& c) { logica.clicDestro(c.disegno().nome, c.disegno().indice); });
    if constexpr (requires { logica.fuoco({}); })
        finestra.alFuoco([&](const Controllo* c) { logica.fuoco(c ? c->disegno().nome : ""); });
    if constexpr (requires { logica.rifiuta({}, U'0'); })
        finestra.alTasto([&](const QKeyEvent& evento) {
            const Controllo* c = finestra.conFuoco();
            return c && portaCarattere(evento) &&
                   logica.rifiuta(c->disegno().nome, evento.text().at(0).unicode());
        });
    if constexpr (requires { logica.allaVista([] {}); })
        logica.allaVista([&finestra] { finestra.ridisegna(); });
    modale.esegui(finestra, [&] {
        if constexpr (requires { logica.mostrata(); })
            logica.mostrata();
    });
}

} // namespace lumigrafo
