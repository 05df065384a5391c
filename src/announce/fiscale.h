#pragma once

#include <string>

namespace lumigrafo {

/// Fiscal receipts, as the console uses them.
class Fiscale {
public:
    virtual ~Fiscale() = default;
    /// Issues the receipt of an order that is being called.
    virtual void EmettiFiscale(const std::string& sigla, const std::string& numero) = 0;
};

/// For a station without a fiscal printer.
class FiscaleAssente : public Fiscale {
public:
    void EmettiFiscale(const std::string&, const std::string&) override {}
};

} // namespace lumigrafo
