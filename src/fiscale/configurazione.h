#pragma once

#include "fiscale/driver_programma.h"
#include "fiscale/impostazioni.h"
#include "fiscale/porte.h"
#include "forms/controlli.h"

#include <filesystem>
#include <functional>
#include <string_view>

namespace lumigrafo {

/// The component's settings in a window: driver, address, header and footer lines, characters a line, and a
/// test print with what the window shows now.
class ConfigurazioneFiscale {
public:
    /// `modificabili`: false shows the settings and saves nothing. What is handed in outlives it.
    ConfigurazioneFiscale(const PorteComponente& porte, const std::filesystem::path& cartellaProgramma,
                          const PostoArchivio& archivio, bool modificabili);

    [[nodiscard]] Controlli& controlli() { return controlli_; }
    /// Closes the window.
    void allaFine(std::function<void()> azione) { fine_ = std::move(azione); }
    /// A click, by the control's name and index. A test print blocks for a bounded time.
    void clic(std::string_view nome, int indice);

private:
    void mostra();
    void mostraDriver();
    /// Takes over what was typed.
    void raccogli();
    void scegliDriver(TipoDriver driver);
    void salva();
    void prova();
    void avvisa(const std::string& testo, Icona icona);

    PorteComponente p_;
    std::filesystem::path cartella_;
    PostoArchivio archivio_;
    Controlli controlli_;
    ImpostazioniFiscali i_;
    std::function<void()> fine_;
};

} // namespace lumigrafo
