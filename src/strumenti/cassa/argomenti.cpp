#include "strumenti/cassa/argomenti.h"

#include "platform/conversioni.h"

#include <charconv>

namespace lumigrafo::cassa {

namespace {

constexpr int kMassimoOgni = 86400;

std::string leggiSigla(const std::string& testo) {
    const std::string sigla = maiuscolo(testo);
    if (sigla.size() != 1 || sigla[0] < 'A' || sigla[0] > 'E')
        throw ErroreDiUso("La sigla è una lettera dalla A alla E, non '" + testo + "'.");
    return sigla;
}

int leggiSecondi(const std::string& testo) {
    int n = 0;
    const auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), n);
    if (errore != std::errc() || fine != testo.data() + testo.size() || n < 1 || n > kMassimoOgni)
        throw ErroreDiUso("--ogni vuole i secondi, da 1 a " + std::to_string(kMassimoOgni) + ", non '" +
                          testo + "'.");
    return n;
}

std::string leggiServer(const std::string& testo) {
    if (testo.empty())
        throw ErroreDiUso("Il nome del server non può essere vuoto.");
    return testo;
}

} // namespace

Argomenti leggiArgomenti(const std::vector<std::string>& parole) {
    Argomenti a;
    for (std::size_t i = 0; i < parole.size(); ++i) {
        const std::string& p = parole[i];
        const auto valore = [&]() -> const std::string& {
            if (++i >= parole.size())
                throw ErroreDiUso("Manca il valore di " + p + ".");
            return parole[i];
        };
        if (p == "--help")
            a.aiuto = true;
        else if (p == "--version")
            a.versione = true;
        else if (p == "--sigla")
            a.sigla = leggiSigla(valore());
        else if (p == "--server")
            a.server = leggiServer(valore());
        else if (p == "--ogni")
            a.ogni = leggiSecondi(valore());
        else
            throw ErroreDiUso("Argomento sconosciuto: '" + p + "'.");
    }
    if (a.sigla.empty() && !a.aiuto && !a.versione)
        throw ErroreDiUso("Manca la lettera della cassa: --sigla A.");
    return a;
}

} // namespace lumigrafo::cassa
