#include "boards/scheda_sfumata.h"

#include "boards/colori.h"

namespace lumigrafo {

void SchedaSfumata::vestiPannello(int slot) {
    coloraNumeri(slot, colore("ColoreTesto", slot, 16777215));
    const Colore base = colore("ColoreSfondo", slot, 0);
    Controllo& pannello = modulo()("picPannello", slot);
    pannello.Sfumatura1(base);
    pannello.Sfumatura2(ColoreSchiarito(base));
    for (int n = 1; n <= riga().grandi; ++n)
        modulo()(nomeCasella(n), slot)
            .BackColor(caselle_ == SfondoCaselle::Base ? pannello.Sfumatura1() : pannello.Sfumatura2());
    leggiNumeri(slot);
}

} // namespace lumigrafo
