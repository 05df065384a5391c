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

/// The fiscal component's own windows, as the console's menu and the settings dialog open them. Each returns
/// when its window is gone.
class FinestreFiscali {
public:
    virtual ~FinestreFiscali() = default;
    /// The utilities (`mnuFiscale`, `cmdTestFiscale`).
    virtual void UtilitaFiscali() = 0;
    /// The notice about the printers, and then the settings (`cmdFiscale`).
    virtual void ImpostazioniFiscali() = 0;
};

} // namespace lumigrafo
