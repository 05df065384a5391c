#pragma once

#include "fiscale/registro.h"
#include "fiscale/stampatore.h"
#include "forms/controlli.h"
#include "forms/griglia.h"

#include <functional>
#include <string_view>
#include <vector>

namespace lumigrafo {

/// The component's utilities: the printer's state, the last receipts with their outcome, and one of them
/// printed again.
class UtilitaFiscale {
public:
    /// What is handed in outlives it.
    UtilitaFiscale(const PorteComponente& porte, const std::filesystem::path& cartellaProgramma,
                   const PostoArchivio& archivio, Stampatore& stampatore);

    [[nodiscard]] Controlli& controlli() { return controlli_; }
    [[nodiscard]] Griglia& elenco() { return elenco_; }
    /// Closes the window.
    void allaFine(std::function<void()> azione) { fine_ = std::move(azione); }
    /// A click, by the control's name.
    void clic(std::string_view nome);
    /// A click on a row of the list.
    void clicElenco(int riga);
    /// Asks the printer for its state and reads the record anew. Blocks for a bounded time.
    void aggiorna();

private:
    void mostraStato();
    void mostraElenco();
    void scegli(int riga);
    void ristampa();

    PorteComponente p_;
    std::filesystem::path cartella_;
    PostoArchivio archivio_;
    Stampatore& stampatore_;
    Controlli controlli_;
    Griglia elenco_;
    std::vector<VoceRegistro> voci_;
    int scelta_ = -1; ///< in `voci_`
    std::function<void()> fine_;
};

} // namespace lumigrafo
