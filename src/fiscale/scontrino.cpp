#include "fiscale/scontrino.h"

#include <cmath>
#include <cstdlib>

namespace lumigrafo {

std::optional<Centesimi> Scontrino::sommaRighe() const {
    if (righe.empty())
        return std::nullopt;
    Centesimi somma = 0;
    for (const RigaScontrino& riga : righe) {
        if (!riga.totale)
            return std::nullopt;
        somma += *riga.totale;
    }
    return somma;
}

std::string testoImporto(Centesimi importo) {
    const std::string cifre = std::to_string(std::llabs(importo));
    const std::string piene = std::string(cifre.size() < 3 ? 3 - cifre.size() : 0, '0') + cifre;
    return (importo < 0 ? "-" : "") + piene.substr(0, piene.size() - 2) + "," +
           piene.substr(piene.size() - 2);
}

std::string testoQuantita(double quantita) {
    const auto millesimi = std::llround(quantita * 1000);
    std::string testo = (millesimi < 0 ? "-" : "") + std::to_string(std::llabs(millesimi) / 1000);
    std::string resto = std::to_string(1000 + std::llabs(millesimi) % 1000).substr(1);
    resto.erase(resto.find_last_not_of('0') + 1);
    return resto.empty() ? testo : testo + "," + resto;
}

} // namespace lumigrafo
