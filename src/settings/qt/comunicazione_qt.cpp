#include "settings/qt/comunicazione_qt.h"

#include "forms/qt/battuta.h"
#include "forms/qt/finestra.h"
#include "settings/qt/finestra_modale.h"

namespace lumigrafo {

void mostraComunicazione(const ServiziComunicazione& servizi) {
    FinestraModale modale;
    modale.soloDaDentro(); // a message on the board always comes off when the window closes
    Comunicazione comunicazione(
        servizi, [] { batti(Qt::Key_Return, QStringLiteral("\r")); }, [&modale] { modale.fine(); });
    Finestra finestra(comunicazione.controlli(), nullptr, Qt::Dialog);
    finestra.alClic([&](const Controllo& c) { comunicazione.clic(c.disegno().nome, c.disegno().indice); });
    modale.esegui(finestra, [&] { comunicazione.controlli()("txtComunicazione").SetFocus(); });
}

} // namespace lumigrafo
