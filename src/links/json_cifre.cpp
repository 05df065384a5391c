#include "links/json_cifre.h"

#include <algorithm>

namespace lumigrafo::json {

namespace {

/// Takes the digits at the head of `testo` off it.
std::string_view togliCifre(std::string_view& testo) {
    const std::size_t fine = std::min(testo.find_first_not_of("0123456789"), testo.size());
    const std::string_view cifre = testo.substr(0, fine);
    testo.remove_prefix(fine);
    return cifre;
}

bool togliUno(std::string_view& testo, std::string_view caratteri) {
    const bool trovato = !testo.empty() && caratteri.find(testo.front()) != std::string_view::npos;
    if (trovato)
        testo.remove_prefix(1);
    return trovato;
}

std::string_view senzaZeri(std::string_view cifre) {
    cifre.remove_prefix(std::min(cifre.find_first_not_of('0'), cifre.size()));
    return cifre;
}

std::int64_t contaEsponente(std::string_view cifre) {
    std::int64_t esponente = 0;
    for (const char c : cifre)
        esponente = std::min(Cifre::kEsponenteMassimo, esponente * 10 + (c - '0'));
    return esponente;
}

} // namespace

std::optional<Cifre> Cifre::di(std::string_view testo) {
    Cifre c;
    c.negativo = togliUno(testo, "-");
    const std::string_view intere = togliCifre(testo);
    c.prima = senzaZeri(intere);
    if (togliUno(testo, "."))
        c.dopo = togliCifre(testo);
    if (intere.empty() && c.dopo.empty())
        return std::nullopt;
    if (togliUno(testo, "eE")) {
        const bool meno = !testo.empty() && testo.front() == '-';
        togliUno(testo, "+-");
        const std::string_view cifre = togliCifre(testo);
        if (cifre.empty())
            return std::nullopt;
        c.esponente = meno ? -contaEsponente(cifre) : contaEsponente(cifre);
    }
    return testo.empty() ? std::optional(c) : std::nullopt;
}

bool Cifre::minoreDiUno() const {
    const auto intere = static_cast<std::int64_t>(prima.size());
    const auto zeri = static_cast<std::int64_t>(dopo.size() - senzaZeri(dopo).size());
    return (intere > 0 ? intere : -zeri) + esponente <= 0;
}

} // namespace lumigrafo::json
