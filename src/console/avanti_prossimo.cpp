#include "console/avanti_prossimo.h"

#include "data/istruzioni.h"

namespace lumigrafo {

std::string AvantiProssimo::ProssimoNumero(const std::string& Cassa) {
    s_.Occupato =
        true; // and stays so where something fails: the program ends then, and no desk takes a number
    Griglia& grid = s_.grid[0];
    const auto posto = grid.primaPiena();
    if (!posto) {
        s_.Occupato = false;
        return {};
    }
    const std::string Numero = grid.testo(posto->riga, posto->colonna);
    grid.testo(posto->riga, posto->colonna, "");
    s_.videataInUso().Lampeggia(Cassa, Numero);
    togliDallaCoda(Numero);
    if (s_.Vocale) // at once: a desk's customer doesn't wait for the console's queue
        voce_.Parla("Numero " + Numero + " in cassa, " + Cassa);
    s_.Occupato = false;
    return Numero;
}

void AvantiProssimo::togliDallaCoda(const std::string& Numero) {
    s_.Db->Execute(istruzioni::togliNumero(Numero));
    // A board that had to be loaded lets events through: a rebuild among them has shown the number again,
    // which no other desk may get.
    Griglia& grid = s_.grid[0];
    if (const auto posto = grid.cerca(Numero))
        grid.testo(posto->riga, posto->colonna, "");
}

} // namespace lumigrafo
