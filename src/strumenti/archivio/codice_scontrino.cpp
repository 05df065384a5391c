#include "strumenti/archivio/codice_scontrino.h"

#include <cstddef>

namespace lumigrafo::archivio {

namespace {

std::string cifre(int valore, std::size_t quante) {
    std::string t = std::to_string(valore);
    return std::string(quante > t.size() ? quante - t.size() : 0, '0') + t;
}

char cifraDiControllo(const std::string& dodici) {
    int somma = 0;
    for (std::size_t i = 0; i < dodici.size(); ++i)
        somma += (dodici[i] - '0') * (i % 2 == 0 ? 1 : 3);
    return static_cast<char>('0' + (10 - somma % 10) % 10);
}

} // namespace

std::string codiceScontrino(const std::string& sigla, int categoria, int numero) {
    const int lettera = sigla.empty() ? 0 : sigla[0];
    const std::string codice = "599" + cifre(lettera, 2) + cifre(categoria, 2) + cifre(numero, 5);
    return codice + cifraDiControllo(codice);
}

} // namespace lumigrafo::archivio
