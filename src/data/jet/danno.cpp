#include "data/jet/danno.h"

#include "data/errori_dao.h"

#include <string_view>

namespace lumigrafo::jet {

namespace {

constexpr std::string_view kConsiglio = "Provare lumigrafo-archivio ripara.";

} // namespace

Guasto danno(std::uint32_t pagina, const std::string& cosa) {
    return {dao::kDanneggiato, "L'archivio è danneggiato (pagina " + std::to_string(pagina) + ": " + cosa +
                                   "). " + std::string(kConsiglio)};
}

Guasto nonRiparabile(const Guasto& danno) {
    std::string testo = danno.descrizione();
    if (testo.ends_with(kConsiglio))
        testo.replace(testo.size() - kConsiglio.size(), kConsiglio.size(),
                      "Non si può riparare: va ripresa una copia.");
    return {danno.numero(), testo};
}

Guasto nonLetto(const std::string& perche) {
    return {dao::kFormato, perche};
}

} // namespace lumigrafo::jet
