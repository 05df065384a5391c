#pragma once

#include "forms/controlli.h"
#include "settings/ini/ini.h"

#include <span>
#include <string_view>

/// The keys of the settings dialog, each tied to the property of the control that shows it.
namespace lumigrafo {

/// Which property of the control is the setting.
enum class Proprieta {
    Testo,     ///< of a text box
    Posizione, ///< in a list
    Valore,    ///< of a check box or a slider
    FontName,
    FontSize,
    ForeColor,
    BackColor,
};

struct ChiaveImposta {
    std::string_view chiave;
    std::string_view controllo;
    int indice;
    Proprieta proprieta;
    std::string_view predefinito;
};

/// In the order of the load.
[[nodiscard]] std::span<const ChiaveImposta> chiaviImposta();

/// Reads the key into its control. Throws Guasto 13 or 6 where the text is no number of the right size, 380
/// where the list has no such position.
void leggi(const FileIni& ini, Controlli& controlli, const ChiaveImposta& chiave);

/// Writes every key from its control, each by itself, in the order of the saving.
void scriviTutte(const FileIni& ini, const Controlli& controlli);

} // namespace lumigrafo
