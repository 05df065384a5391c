#pragma once

#include "data/dao.h"
#include "platform/orologio.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

/// The work of a cash desk: orders written into the archive.
namespace lumigrafo::archivio {

/// One line of a receipt.
struct Articolo {
    std::string descrizione;
    int quantita = 1;
    double prezzo = 0; ///< of one piece
};

/// What an order has in one category.
struct Voce {
    int categoria = 0; ///< 1 to 10
    int pezzi = 0;
    std::vector<Articolo> articoli; ///< empty: one line with the category's name
    int minutiServito = -1;         ///< minutes since midnight; below 0: still to serve
};

struct Ordine {
    std::string sigla; ///< one letter, or empty
    int numero = 0;
    std::vector<Voce> voci;
    bool evidenzia = false;
};

/// The business date as the archive holds it, yyyymmdd: before 05:00 it is yesterday's.
[[nodiscard]] std::int32_t dataCompetenza(const DataOra& adesso);

/// Writes orders into one archive, with the date that all of them bear.
class Cassa {
public:
    Cassa(Database& db, std::int32_t dataCompetenza);
    /// The queue's row, its details, the receipt and its lines, and the counter. Throws Guasto; 3022 where
    /// the queue already holds that letter and number. Several writes: the caller makes them one transaction.
    void registra(const Ordine& ordine);

private:
    void scriviCoda(const Ordine& ordine);
    void scriviDettagli(const Ordine& ordine, const Voce& voce);
    double scriviArticoli(const Ordine& ordine, const Voce& voce);
    void scriviScontrino(const Ordine& ordine, double totale);
    [[nodiscard]] std::vector<Articolo> articoliDi(const Voce& voce);

    Database& db_;
    std::int32_t data_;
    std::unique_ptr<Recordset> coda_, dettagli_, articoli_, scontrini_;
    bool totali_; ///< the articles have a column for them
};

} // namespace lumigrafo::archivio
