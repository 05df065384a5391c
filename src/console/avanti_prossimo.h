#pragma once

#include "announce/annunciatore.h"
#include "console/stato.h"
#include "links/collegamenti.h"

#include <string>

namespace lumigrafo {

/// The next-customer system: the numbers of the first order grid go to whichever cash desk asks, in the order
/// of its cells.
class AvantiProssimo final : public CodaCasse {
public:
    /// Both outlive the object.
    AvantiProssimo(StatoConsole& stato, Parlante& voce) : s_(stato), voce_(voce) {}

    [[nodiscard]] bool Occupato() const override { return s_.Occupato; }
    /// The number is the text of the cell, whatever it holds. The system is made for numbers without a
    /// letter, such as the number-fill dialog makes: to the archive a cell with a letter is no number, and
    /// its statement fails.
    std::string ProssimoNumero(const std::string& Cassa) override;

private:
    void togliDallaCoda(const std::string& Numero);

    StatoConsole& s_;
    Parlante& voce_;
};

} // namespace lumigrafo
