#pragma once

#include "data/dao.h"

#include <cstdint>
#include <memory>
#include <string>

namespace lumigrafo {

/// What the two objects of the fiscal component are told alike: where the archive and the program are.
/// Folders are UTF-8, without a separator at their end.
class OggettoFiscale {
public:
    virtual ~OggettoFiscale() = default;
    /// The open archive; it must outlive the object.
    virtual void Database(lumigrafo::Database& db) = 0;
    /// The archive's folder.
    virtual void CartellaDati(const std::string& cartella) = 0;
    /// The archive's workspace; it must outlive the object.
    virtual void Workspace(lumigrafo::Workspace& ws) = 0;
    virtual void CartellaProgramma(const std::string& cartella) = 0;
};

/// Issues receipts. Made for a use, told all that it needs, and released at the end of the routine.
class ComponenteFiscale : public OggettoFiscale {
public:
    /// Once before issuing; `esito` tells whether it is ready.
    virtual void Prepara(bool& esito) = 0;
    /// The component's window of utilities, modal.
    virtual void MostraUtilita() = 0;
    /// Issues one receipt; `esito` is true where it is done, and at no other time. `testo` and `valore` are
    /// always "" and 1.
    virtual void EmettiScontrino(std::int32_t ID_Scontrino, const std::string& testo, std::int32_t valore,
                                 bool& esito) = 0;
    /// True where the archive lies in the program's own folder.
    virtual void ArchivioLocale(bool locale) = 0;
    /// Must be true for a receipt to be issued.
    virtual void Stampa(bool stampa) = 0;
};

/// The component's settings.
class ConfiguraFiscale : public OggettoFiscale {
public:
    /// The text of a truth value: true lets the operator change them.
    virtual void Opzione(const std::string& testo) = 0;
    /// The window of the settings. `modale`: returns when it is gone.
    virtual void Mostra(bool modale) = 0;
};

/// Makes the component's objects on demand.
class FabbricaFiscale {
public:
    virtual ~FabbricaFiscale() = default;
    [[nodiscard]] virtual std::unique_ptr<ComponenteFiscale> creaComponente() = 0;
    [[nodiscard]] virtual std::unique_ptr<ConfiguraFiscale> creaConfigura() = 0;
};

} // namespace lumigrafo
