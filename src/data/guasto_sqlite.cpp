#include "data/guasto_sqlite.h"

#include <charconv>

namespace lumigrafo {

namespace {

constexpr char kSegno = '\x1f'; // no message of SQLite's begins with it

} // namespace

std::string guastoPerSqlite(const Guasto& guasto) {
    return kSegno + std::to_string(guasto.numero()) + kSegno + guasto.descrizione();
}

std::optional<Guasto> guastoDaSqlite(std::string_view messaggio) {
    if (!messaggio.starts_with(kSegno))
        return std::nullopt;
    const auto fine = messaggio.find(kSegno, 1);
    int numero = 0;
    std::from_chars(messaggio.data() + 1, messaggio.data() + messaggio.size(), numero);
    return Guasto(numero, std::string(messaggio.substr(fine + 1)));
}

} // namespace lumigrafo
