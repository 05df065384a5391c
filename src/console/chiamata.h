#pragma once

#include "console/caricatore.h"
#include "console/contesto.h"

#include <cstdint>
#include <string>

namespace lumigrafo {

/// The console's main act: a number goes up on the board, is announced and struck off.
class Chiamata {
public:
    Chiamata(ContestoConsole& contesto, Caricatore& caricatore);

    /// A click on the current cell of `grid(q)`.
    void clicGriglia(std::int16_t q);
    /// The receipt of a called order, at a station that issues receipts.
    void emettiScontrino(const std::string& sigla, const std::string& numero);
    /// Puts a number into the quadrant's newest slot, unless it is on show there already.
    void MostraNumero(std::int16_t index, const std::string& sigla, const std::string& numero);
    /// Strikes the number's category off the queue and empties its cell; -1 takes the grid's current row or
    /// column. A number that is no longer in the queue keeps its cell until the next rebuild.
    void AggiornaGridDB(const std::string& sigla, const std::string& numero, std::int16_t index,
                        std::int16_t riga, std::int16_t colonna);

    /// Speaks a called number, where the voice is on.
    void annuncia(std::int16_t q, const std::string& sigla, const std::string& numero);

private:
    void chiama(std::int16_t q, const std::string& cella, const std::string& sigla,
                const std::string& numero);
    [[nodiscard]] bool giaInMostra(std::int16_t index, const std::string& testo) const;
    void scorri(std::int16_t index, const std::string& testo);
    void salvaVideata(std::int16_t index);
    [[nodiscard]] bool depenna(const std::string& sigla, const std::string& numero, std::int16_t index);
    void chiudiCategorie(Recordset& rs, std::int16_t index);
    [[nodiscard]] static bool categorieAperte(Recordset& rs);
    void svuotaCella(std::int16_t index, int riga, int colonna);
    void togliRigaVuota(std::int16_t index, int riga);

    ContestoConsole& c_;
    Caricatore& caricatore_;
    bool clicInCorso_ = false;
};

/// What the voice says of a number: the department's name where there are several, the key word otherwise.
[[nodiscard]] std::string testoAnnuncio(const ContestoConsole& contesto, int quadrante,
                                        const std::string& testo);

} // namespace lumigrafo
