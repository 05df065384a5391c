#include "console/scelta_videata.h"

namespace lumigrafo {

SceltaVideata scegliVideata(const StatoConsole& stato) {
    // The order of the tests counts: the next-customer system first, then one department alone, then the
    // type.
    if (stato.TipoLumigrafo == 4)
        return {TipoVideata::frmAvantiProssimo, true};
    if (stato.Categoria[1] <= 0 && stato.Categoria[2] <= 0 && stato.TipoLumigrafo != 2) {
        if (stato.TipoLumigrafo == 3)
            return {TipoVideata::frmLumigrafo1RepartoBig, true};
        return {stato.Lumigrafo9Numeri ? TipoVideata::frmLumigrafo1Reparto9numeri
                                       : TipoVideata::frmLumigrafo1Reparto,
                true};
    }
    switch (stato.TipoLumigrafo) {
    case 1:
        return {stato.Lumigrafo9Numeri ? TipoVideata::frmLumigrafoOrizz9numeri
                                       : TipoVideata::frmLumigrafooRIZZ,
                false};
    case 2:
        return {TipoVideata::frmLumigrafoPerson, true};
    default:
        // Type 3 with several departments lands here too: the big board exists for one department only.
        return {TipoVideata::frmLumigrafo, false};
    }
}

} // namespace lumigrafo
