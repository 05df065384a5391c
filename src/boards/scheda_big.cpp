#include "boards/scheda_big.h"

#include "boards/colori.h"

namespace lumigrafo {

void SchedaBig::vesti() {
    const CarattereNumeri carattere = carattereNumeri("Arial Narrow", 160);
    // Black here and white for the heading: two reads of one key, each with a default of its own.
    ColoreTestoNumero = colore("ColoreTesto", 0, 0);
    coloraNumeri(0, ColoreTestoNumero);
    Controllo& pannello = modulo()("picPannello", 0);
    pannello.Sfumatura2(kBianco);
    ColoreSfondoNumero = colore("ColoreSfondo", 0, 0);
    pannello.Sfumatura1(ColoreSfondoNumero);
    for (int n = 1; n <= riga().grandi; ++n)
        coloraCasella(n);
    modulo()("lblChiamati").ForeColor(colore("ColoreTesto", 0, 16777215));
    leggiNumeri(0);
    carattereNumeriGrandi(0, carattere);
}

void SchedaBig::coloraCasella(int n) {
    Controllo& casella = modulo()(nomeCasella(n), 0);
    casella.Sfumatura2(ColoreSfondoNumero);
    casella.Sfumatura1(ColoreScurito(ColoreSfondoNumero));
}

void SchedaBig::faseLampeggio(int, bool usuale) {
    modulo()("lblNumero3", 0).ForeColor(usuale ? ColoreTestoNumero : kNero);
    if (usuale) {
        coloraCasella(1);
        return;
    }
    Controllo& casella = modulo()(nomeCasella(1), 0);
    casella.Sfumatura2(kBianco);
    casella.Sfumatura1(kBianco);
}

} // namespace lumigrafo
