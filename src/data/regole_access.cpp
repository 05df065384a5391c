#include "data/regole_access.h"

#include "data/errori_dao.h"
#include "data/jet/dato.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

namespace lumigrafo {

namespace {

using jet::Colonna;
using jet::Tipo;

bool eUnaDi(std::string_view parola, const std::array<std::string_view, 3>& parole) {
    return std::any_of(parole.begin(), parole.end(),
                       [&](std::string_view p) { return jet::stessoNome(parola, p); });
}

/// What stands between quotes, a doubled one being one; nothing where it isn't one text.
std::optional<std::string> traVirgolette(std::string_view e) {
    const char v = e.empty() ? ' ' : e.front();
    if (e.size() < 2 || (v != '"' && v != '\'') || e.back() != v)
        return std::nullopt;
    std::string testo;
    for (std::size_t i = 1; i + 1 < e.size(); ++i) {
        if (e[i] == v && (e[++i] != v || i + 1 == e.size()))
            return std::nullopt;
        testo += e[i];
    }
    return testo;
}

/// A default's expression as Access keeps it, in English whatever the language of its windows. Null for what
/// would have to be computed.
jet::Dato costante(std::string_view e) {
    constexpr std::string_view kBianchi = " \t\r\n";
    const auto rifila = [&] {
        e.remove_prefix(std::min(e.find_first_not_of(kBianchi), e.size()));
        e = e.substr(0, e.find_last_not_of(kBianchi) + 1);
    };
    rifila();
    if (e.starts_with('=')) {
        e.remove_prefix(1);
        rifila();
    }
    if (eUnaDi(e, {"True", "Yes", "On"}))
        return std::int64_t{-1};
    if (eUnaDi(e, {"False", "No", "Off"}))
        return std::int64_t{0};
    if (auto testo = traVirgolette(e))
        return std::move(*testo);
    if (!e.empty() && e.find_first_not_of("+-.0123456789eE") == e.npos) {
        double numero = 0;
        e.remove_prefix(e.front() == '+' ? 1 : 0);
        const auto [fine, esito] = std::from_chars(e.data(), e.data() + e.size(), numero);
        if (esito == std::errc() && fine == e.data() + e.size())
            return numero;
    }
    return {};
}

} // namespace

RegoleAccess::RegoleAccess(const jet::Definizione& d, const std::vector<jet::Proprieta>& proprieta) {
    for (const Colonna& c : d.colonne) {
        Regola& r = regole_.emplace_back();
        r.nome = c.nome;
        const auto p = std::find_if(proprieta.begin(), proprieta.end(), [&](const jet::Proprieta& x) {
            return jet::stessoNome(x.colonna, c.nome);
        });
        if (p == proprieta.end())
            continue;
        // Yes/No is never null, and an autonumber is given its value.
        r.richiesta = p->richiesta && c.tipo != Tipo::Booleano && !c.contatore;
        if (!c.contatore) // a value that the column can't take is none
            ignorandoGuasti([&] { r.predefinito = scriviDato(c, costante(p->predefinito)); });
    }
}

std::optional<std::string> RegoleAccess::predefinito(std::size_t colonna) const {
    return colonna < regole_.size() ? regole_[colonna].predefinito : std::nullopt;
}

void RegoleAccess::verifica(std::size_t colonna, const std::optional<std::string>& byte) const {
    if (colonna < regole_.size() && regole_[colonna].richiesta && !byte)
        throw erroreDao(dao::kCampoRichiesto, regole_[colonna].nome);
}

} // namespace lumigrafo
