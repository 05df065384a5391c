#include "fiscale/qt/finestre_componente_qt.h"

#include "fiscale/configurazione.h"
#include "fiscale/utilita.h"
#include "forms/qt/finestra.h"
#include "forms/qt/griglia_widget.h"
#include "settings/qt/finestra_modale.h"

#include <QTimer>

namespace lumigrafo {

void FinestreComponenteQt::mostra(UtilitaFiscale& utilita) {
    FinestraModale modale;
    Finestra finestra(utilita.controlli(), nullptr, Qt::Dialog);
    finestra.alClic([&utilita](const Controllo& c) { utilita.clic(c.disegno().nome); });
    finestra.collegaGriglia("gridScontrini", kSenzaIndice, utilita.elenco())
        .alClic([&utilita](int riga, int) { utilita.clicElenco(riga); });
    utilita.allaFine([&modale] { modale.fine(); });
    // The printer is asked once the window stands there: it may take its time.
    QTimer::singleShot(50, &finestra, [&utilita] { utilita.aggiorna(); });
    modale.esegui(finestra);
}

void FinestreComponenteQt::mostra(ConfigurazioneFiscale& configurazione) {
    FinestraModale modale;
    Finestra finestra(configurazione.controlli(), nullptr, Qt::Dialog);
    finestra.alClic(
        [&configurazione](const Controllo& c) { configurazione.clic(c.disegno().nome, c.disegno().indice); });
    configurazione.allaFine([&modale] { modale.fine(); });
    modale.esegui(finestra);
}

} // namespace lumigrafo
