#pragma once

#include "announce/componente_fiscale.h"
#include "announce/finestra_fiscale.h"
#include "announce/fiscale.h"
#include "announce/log.h"
#include "data/cls_recordset.h"
#include "platform/messaggi.h"
#include "platform/pompa.h"

#include <cstdint>
#include <string>

namespace lumigrafo {

/// The running state of the console, as the receipts need it.
class DatiFiscali {
public:
    virtual ~DatiFiscali() = default;
    [[nodiscard]] virtual Database& Db() = 0;
    [[nodiscard]] virtual Workspace& Ws() = 0;
    [[nodiscard]] virtual std::string PathDB() const = 0;             ///< the archive's folder
    [[nodiscard]] virtual std::int32_t DataCompetenzaSql() const = 0; ///< the business date as yyyymmdd
};

/// What the receipts work with; all of it outlives them.
struct PorteFiscali {
    std::string cartella; ///< the program's folder
    DatiFiscali& dati;
    RegistroLog& log;
    Pompa& pompa;
    Messaggi& messaggi;
    Orologio& orologio;
    Avvisi& avvisi;
    Uscita& uscita;
    Sistema& sistema;
    FinestraFiscale& frmFiscale;
    FabbricaFiscale& fabbrica;
};

/// This program's side of the fiscal component: finds an order's receipt in the archive and hands it over.
class EmissioneFiscale final : public Fiscale, public FinestreFiscali {
public:
    explicit EmissioneFiscale(const PorteFiscali& porte) : p_(porte) {}

    /// Blocks the console but for two moments at which events are let through. A failure of the archive ends
    /// the program as clsRecordset does; what the component throws goes on.
    void EmettiFiscale(const std::string& Sigla, const std::string& Numero) override;
    void UtilitaFiscali() override;
    void ImpostazioniFiscali() override;

private:
    /// The newest receipt's identifier, or -1: the operator has been told why.
    [[nodiscard]] std::int32_t CercaScontrino(const std::string& Sigla, const std::string& Numero);
    void StampaScontrino(std::int32_t ID_Scontrino);
    void imposta(OggettoFiscale& oggetto) const;

    PorteFiscali p_;
};

} // namespace lumigrafo
