#include "settings/qt/password_qt.h"

#include "forms/qt/finestra.h"
#include "settings/qt/finestra_modale.h"

#include <QKeyEvent>

namespace lumigrafo {

bool chiediPassword(const ServiziPassword& servizi, DomandaPassword& domanda) {
    FinestraModale modale;
    modale.soloDaDentro(); // another way out would leave the answer of the time before
    Password password(servizi, domanda, [&modale] { modale.fine(); });
    Finestra finestra(password.controlli(), nullptr, Qt::Dialog | Qt::FramelessWindowHint);
    finestra.alClic([&](const Controllo& c) { password.clic(c.disegno().nome, c.disegno().indice); });
    finestra.alTasto([&](const QKeyEvent& evento) {
        return evento.text().size() == 1 && password.tasto(evento.text().at(0).unicode());
    });
    modale.esegui(finestra);
    return domanda.EsitoPassword == kVero;
}

} // namespace lumigrafo
