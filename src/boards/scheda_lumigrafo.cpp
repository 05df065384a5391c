#include "boards/scheda_lumigrafo.h"

#include "boards/layout_lumigrafo.h"
#include "platform/conversioni.h"

namespace lumigrafo {

SchedaLumigrafo::SchedaLumigrafo(const ServiziSchede& servizi)
    : Scheda(TipoVideata::frmLumigrafo, kLayoutLumigrafo, servizi) {}

void SchedaLumigrafo::vesti() {
    titoliReparti();
    const float punti = aSingolo(impostazione("FontSizeNumeri", 100));
    const std::string carattere = impostazione("FontNumeri", "Arial Narrow");
    for (int i = 0; i < 3; ++i) {
        coloraNumeri(i, Colore(aIntero32(impostazione("ColoreTesto", i, 16777215))));
        modulo()("picPannello", i).BackColor(Colore(aIntero32(impostazione("ColoreSfondo", i, 0))));
        modulo()("lblTitolo", i).ForeColor(modulo()("lblNumero1", i).ForeColor());
        leggiNumeri(i);
        carattereNumeriGrandi(i, carattere, punti);
    }
}

} // namespace lumigrafo
