#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace lumigrafo {

/// An amount of money in hundredths of a euro.
using Centesimi = std::int64_t;

/// One line of a receipt. What the archive doesn't hold is empty.
struct RigaScontrino {
    std::string descrizione;
    std::optional<double> quantita;
    std::optional<Centesimi> prezzo; ///< of one piece
    std::optional<Centesimi> totale; ///< of the line

    friend bool operator==(const RigaScontrino&, const RigaScontrino&) = default;
};

/// A receipt as the cash desk wrote it. What the archive doesn't hold is empty.
struct Scontrino {
    std::int32_t id = 0;
    std::string sigla; ///< a letter, or empty
    std::string numero;
    std::int32_t dataCompetenza = 0; ///< yyyymmdd
    std::optional<Centesimi> totale;
    std::vector<RigaScontrino> righe;

    /// Letter, blank, number; without a letter the bare number.
    [[nodiscard]] std::string ordine() const { return sigla.empty() ? numero : sigla + " " + numero; }
    /// The sum of the lines; none where a line has no amount, or where there are no lines.
    [[nodiscard]] std::optional<Centesimi> sommaRighe() const;
    /// What the customer pays: the receipt's own total, else the sum of its lines.
    [[nodiscard]] std::optional<Centesimi> importo() const { return totale ? totale : sommaRighe(); }
};

/// "1234,50": two digits behind the comma.
[[nodiscard]] std::string testoImporto(Centesimi importo);

/// "2", "0,35": three digits behind the comma at the most.
[[nodiscard]] std::string testoQuantita(double quantita);

} // namespace lumigrafo
