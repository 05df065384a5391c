#include "boards/layout_videate.h"

#include "platform/guasto.h"

namespace lumigrafo {

const Layout& layoutDi(TipoVideata tipo) {
    switch (tipo) {
    case TipoVideata::frmLumigrafo:
        return kLayoutLumigrafo;
    case TipoVideata::frmLumigrafooRIZZ:
        return kLayoutOrizzontale;
    case TipoVideata::frmLumigrafoOrizz9numeri:
        return kLayoutOrizzontale9;
    case TipoVideata::frmLumigrafo1Reparto:
        return kLayoutUnReparto;
    case TipoVideata::frmLumigrafo1Reparto9numeri:
        return kLayoutUnReparto9;
    case TipoVideata::frmLumigrafo1RepartoBig:
        return kLayoutBig;
    case TipoVideata::frmLumigrafoPerson:
        return kLayoutPerson;
    case TipoVideata::frmAvantiProssimo:
        return kLayoutAvantiProssimo;
    }
    throw Guasto(guasti::kIndice);
}

} // namespace lumigrafo
