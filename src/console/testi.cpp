#include "console/testi.h"

#include "platform/conversioni.h"

namespace lumigrafo {

std::string FormattaNumero(std::string_view sigla, std::string_view numero) {
    const std::string lettera = trim(sigla);
    const std::string cifre = std::to_string(aIntero16(val(trim(numero))));
    return lettera.empty() ? cifre : lettera + "  " + cifre;
}

std::string testoVideata(std::string_view sigla, std::string_view numero) {
    return trim(trim(sigla) + " " + trim(numero));
}

} // namespace lumigrafo
