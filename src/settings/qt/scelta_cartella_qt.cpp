#include "settings/qt/scelta_cartella_qt.h"

#include "settings/qt/dialogo_qt.h"
#include "settings/sfoglia_cartelle.h"

namespace lumigrafo {

std::string SceltaCartellaQt::scegli(const RichiestaCartella& richiesta) {
    std::string scelta;
    mostraDialogo<SfogliaCartelle>(richiesta, luoghi_.elenco(), scelta);
    return scelta;
}

} // namespace lumigrafo
