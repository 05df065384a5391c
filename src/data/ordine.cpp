#include "data/ordine.h"

#include "platform/conversioni.h"

namespace lumigrafo {

namespace {

/// Bytes of the first character of a UTF-8 text.
std::size_t primoCarattere(std::string_view testo) {
    std::size_t n = 1;
    while (n < testo.size() && (static_cast<unsigned char>(testo[n]) & 0xC0) == 0x80)
        ++n;
    return n;
}

} // namespace

Ordine dividiCella(std::string_view testo) {
    const std::string t = trim(testo);
    if (t.empty() || isNumeric(t.substr(0, 1)))
        return {"", t};
    const std::size_t n = primoCarattere(t);
    return {t.substr(0, n), trim(t.substr(n))};
}

} // namespace lumigrafo
