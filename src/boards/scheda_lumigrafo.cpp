#include "boards/scheda_lumigrafo.h"

namespace lumigrafo {

void SchedaLumigrafo::vesti() {
    titoliReparti();
    const CarattereNumeri carattere = carattereNumeri("Arial Narrow", 100);
    for (int i = 0; i < riga().slot; ++i) {
        coloraNumeri(i, colore("ColoreTesto", i, 16777215));
        modulo()("picPannello", i).BackColor(colore("ColoreSfondo", i, 0));
        modulo()("lblTitolo", i).ForeColor(modulo()("lblNumero1", i).ForeColor());
        leggiNumeri(i);
        carattereNumeriGrandi(i, carattere);
    }
}

} // namespace lumigrafo
