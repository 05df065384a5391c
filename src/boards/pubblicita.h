#pragma once

#include "boards/elenco_pubblicita.h"
#include "boards/famiglia.h"
#include "forms/controlli.h"
#include "platform/timer.h"
#include "settings/ini/ini.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>

namespace lumigrafo {

/// Whether a picture is stretched over its panel, or stands there at its own size.
enum class Stiratura : std::uint8_t { Mai, SeRichiesta, Sempre };

/// What one board's advertising has, of those that have any.
struct RigaPubblicita {
    TipoVideata tipo;
    std::chrono::milliseconds intervallo;
    bool accesa; ///< runs from the load on
    Stiratura stiratura;
    Twip meno;            ///< left free under a stretched picture, twips of the screen
    bool strisciaAScelta; ///< the settings show the strip
    bool strisciaDavanti; ///< a picture that comes never lies over the strip
    bool provaAllInizio;  ///< with no picture at the load, neither panel nor rotation
};

// clang-format off
inline constexpr std::array<RigaPubblicita, 6> kPubblicita{{
    {TipoVideata::frmLumigrafooRIZZ,        std::chrono::milliseconds(10000), true,  Stiratura::SeRichiesta, 0,   true,  true,  false},
    {TipoVideata::frmLumigrafoOrizz9numeri, std::chrono::milliseconds(10000), true,  Stiratura::SeRichiesta, 600, true,  true,  false},
    {TipoVideata::frmLumigrafo1Reparto,     std::chrono::milliseconds(10000), true,  Stiratura::SeRichiesta, 0,   true,  true,  false},
    {TipoVideata::frmLumigrafo1RepartoBig,  std::chrono::milliseconds(10000), true,  Stiratura::SeRichiesta, 0,   false, false, true},
    {TipoVideata::frmLumigrafoPerson,       std::chrono::milliseconds(32000), true,  Stiratura::Mai,         0,   false, false, false},
    {TipoVideata::frmAvantiProssimo,        std::chrono::milliseconds(10000), false, Stiratura::Sempre,      0,   false, true,  false},
}};
// clang-format on

/// Null for a board without advertising.
[[nodiscard]] const RigaPubblicita* rigaPubblicita(TipoVideata tipo);

/// A board's advertising: pictures of the program folder in turn in `picPubblicita`, the first one an
/// interval after the load, and the strip `FraMirtolanda`. A file of the right name that is no picture throws
/// Guasto 481 from the timer.
class Pubblicita {
public:
    Pubblicita(const RigaPubblicita& riga, Controlli& controlli, Timers& timers,
               const std::filesystem::path& cartella);

    /// The strip and the way of fitting, as the settings have them. A key that holds no number throws Guasto
    /// 13.
    void prepara(const FileIni& impostazioni);
    /// The end of the load. Throws as `prepara`.
    void concludi(const FileIni& impostazioni);
    /// Starts or stops the rotation and shows or hides its panel.
    void mostra(bool inVista);

private:
    void mostraStriscia(const FileIni& impostazioni);
    void leggiResize(const FileIni& impostazioni);
    void stira();
    void scatto();

    const RigaPubblicita& riga_;
    Controlli& controlli_;
    Controllo& picPubblicita_;
    ElencoPubblicita elenco_;
    std::unique_ptr<Timer> timerImmagini_;
};

} // namespace lumigrafo
