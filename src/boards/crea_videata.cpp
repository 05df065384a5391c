#include "boards/crea_videata.h"

#include "boards/scheda_avanti_prossimo.h"
#include "boards/scheda_big.h"
#include "boards/scheda_lumigrafo.h"
#include "boards/scheda_orizzontale.h"
#include "boards/scheda_person.h"
#include "boards/scheda_un_reparto.h"
#include "boards/videata_lumigrafo.h"
#include "platform/guasto.h"

#include <utility>

namespace lumigrafo {

std::unique_ptr<Scheda> creaScheda(TipoVideata tipo, const ServiziSchede& servizi) {
    switch (tipo) {
    case TipoVideata::frmLumigrafo:
        return std::make_unique<SchedaLumigrafo>(servizi);
    case TipoVideata::frmLumigrafooRIZZ:
    case TipoVideata::frmLumigrafoOrizz9numeri:
        return std::make_unique<SchedaOrizzontale>(tipo, servizi);
    case TipoVideata::frmLumigrafo1Reparto:
    case TipoVideata::frmLumigrafo1Reparto9numeri:
        return std::make_unique<SchedaUnReparto>(tipo, servizi);
    case TipoVideata::frmLumigrafo1RepartoBig:
        return std::make_unique<SchedaBig>(servizi);
    case TipoVideata::frmLumigrafoPerson:
        return std::make_unique<SchedaPerson>(servizi);
    case TipoVideata::frmAvantiProssimo:
        return std::make_unique<SchedaAvantiProssimo>(servizi);
    }
    throw Guasto(guasti::kIndice);
}

std::unique_ptr<Videata> creaVideata(TipoVideata tipo, const ServiziSchede& servizi,
                                     FabbricaFinestre finestre) {
    return std::make_unique<VideataLumigrafo>(tipo, servizi, std::move(finestre));
}

} // namespace lumigrafo
