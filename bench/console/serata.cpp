#include "bench/console/serata.h"

namespace lumigrafo::misure {

std::string siglaDi(int numero) {
    return std::string(1, static_cast<char>('A' + numero % 5));
}

void prepara(prova::Banco& b, int ordini) {
    for (int n = 1; n <= ordini; ++n)
        b.archivio.ordine(siglaDi(n), n, {{1, 1 + n % 4}, {2, 2}, {3, 1}}, n % 50 == 0);
    for (int q = 0; q < kReparti; ++q)
        b.imposta(("Categoria" + std::to_string(q)).c_str(), q + 1);
    b.imposta("NumeroMassimoRighe", 400);
}

void dimentica(prova::Banco& b) {
    b.diario.clear();
    b.pompa.punti.clear();
    b.messaggi.mostrati.clear();
}

} // namespace lumigrafo::misure
