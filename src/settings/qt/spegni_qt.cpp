#include "settings/qt/spegni_qt.h"

#include "forms/qt/finestra.h"
#include "settings/qt/finestra_modale.h"

namespace lumigrafo {

void mostraSpegni(Processi& processi, Alimentazione& alimentazione, Uscita& uscita) {
    FinestraModale modale;
    Spegni spegni(processi, alimentazione, uscita, [&modale] { modale.fine(); });
    Finestra finestra(spegni.controlli(), nullptr, Qt::Dialog | Qt::FramelessWindowHint);
    finestra.alClic([&spegni](const Controllo& c) { spegni.clic(c.disegno().nome); });
    modale.esegui(finestra);
}

} // namespace lumigrafo
