#include "settings/scelta_path.h"

namespace lumigrafo {

std::string ScegliCartella(SceltaCartella& finestra, const std::string& titolo, int opzioni, int radice,
                           const std::string& predefinito) {
    const std::string scelta = finestra.scegli({titolo, opzioni, radice, predefinito});
    return scelta.empty() ? predefinito : scelta;
}

} // namespace lumigrafo
