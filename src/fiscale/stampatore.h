#pragma once

#include "data/dao.h"
#include "fiscale/driver.h"
#include "fiscale/driver_programma.h"
#include "fiscale/porte.h"
#include "fiscale/registro.h"

#include <cstdint>
#include <filesystem>

namespace lumigrafo {

/// From a receipt's identifier to paper: one attempt a call, noted in the record, its failure told to the
/// operator.
class Stampatore {
public:
    /// What is handed in outlives it.
    Stampatore(const PorteComponente& porte, Database& db, std::filesystem::path cartellaProgramma,
               PostoArchivio archivio)
        : p_(porte), db_(db), cartella_(std::move(cartellaProgramma)), archivio_(std::move(archivio)) {}

    /// True where it is done. Nothing is printed of a receipt that can't be read or was cancelled. Throws
    /// nothing.
    bool emetti(std::int32_t id) { return emetti(id, nullptr); }
    /// The same for a receipt of the record. Nothing is printed where the archive holds another order under
    /// its identifier by now.
    bool ristampa(const VoceRegistro& voce) { return emetti(voce.id, &voce); }

private:
    /// `attesa`: which receipt it has to be; null for any.
    bool emetti(std::int32_t id, const VoceRegistro* attesa);
    [[nodiscard]] EsitoStampa tenta(std::int32_t id, const VoceRegistro* attesa);
    void avvisa(const EsitoStampa& esito);

    PorteComponente p_;
    Database& db_;
    std::filesystem::path cartella_;
    PostoArchivio archivio_;
};

} // namespace lumigrafo
