#include "data/jet/danno.h"

#include "data/errori_dao.h"

namespace lumigrafo::jet {

Guasto danno(std::uint32_t pagina, const std::string& cosa) {
    return {dao::kDanneggiato, "L'archivio è danneggiato (pagina " + std::to_string(pagina) + ": " + cosa +
                                   "). Provare lumigrafo-archivio ripara."};
}

Guasto nonLetto(const std::string& perche) {
    return {dao::kFormato, perche};
}

} // namespace lumigrafo::jet
