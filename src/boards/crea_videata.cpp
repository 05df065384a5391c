#include "boards/crea_videata.h"

#include "boards/scheda_lumigrafo.h"
#include "boards/videata_lumigrafo.h"

#include <utility>

namespace lumigrafo {

std::unique_ptr<Scheda> creaScheda(TipoVideata tipo, const ServiziSchede& servizi) {
    switch (tipo) {
    case TipoVideata::frmLumigrafo:
    // The standard board stands in for these, which have no logic of their own here.
    case TipoVideata::frmLumigrafooRIZZ:
    case TipoVideata::frmLumigrafoOrizz9numeri:
    case TipoVideata::frmLumigrafo1Reparto:
    case TipoVideata::frmLumigrafo1Reparto9numeri:
    case TipoVideata::frmLumigrafo1RepartoBig:
    case TipoVideata::frmLumigrafoPerson:
    case TipoVideata::frmAvantiProssimo:
        break;
    }
    return std::make_unique<SchedaLumigrafo>(servizi);
}

std::unique_ptr<Videata> creaVideata(TipoVideata tipo, const ServiziSchede& servizi,
                                     FabbricaFinestre finestre) {
    return std::make_unique<VideataLumigrafo>(tipo, servizi, std::move(finestre));
}

} // namespace lumigrafo
