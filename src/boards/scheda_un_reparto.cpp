#include "boards/scheda_un_reparto.h"

namespace lumigrafo {

void SchedaUnReparto::vesti() {
    const CarattereNumeri carattere = carattereNumeri("Arial Narrow", 100);
    vestiPannello(0);
    modulo()("lblChiamati").ForeColor(colore("ColoreTesto", 0, 16777215));
    carattereNumeriGrandi(0, carattere);
}

} // namespace lumigrafo
