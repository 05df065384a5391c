#pragma once

#include "boards/videata.h"
#include "data/dao.h"
#include "forms/griglia.h"
#include "links/collegamenti.h"
#include "platform/guasto.h"
#include "platform/orologio.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>

namespace lumigrafo {

inline constexpr int kQuadranti = 3;
/// Category codes run from 1 to 10; 0 is none.
inline constexpr int kCategorie = 10;
/// Called numbers kept of each quadrant.
inline constexpr int kUltimi = 11;

/// The running state that the console's routines share. The program owns it; each routine holds a
/// reference.
struct StatoConsole {
    std::string PathDB;       ///< folder of the archive, UTF-8
    std::string PathArchivio; ///< the archive's full path, UTF-8
    Workspace* Ws = nullptr;
    std::unique_ptr<Database> Db; ///< open for the whole run
    Data DataCompetenza;          ///< business date, fixed at the load

    std::int16_t NumeroMassimoRighe = 50;
    /// Category of each quadrant; element 3 is a further one that quadrant 0 shows too. 0: not in use.
    std::array<std::int16_t, 4> Categoria{};
    std::array<std::string, kQuadranti> Reparto;
    std::int16_t TipoLumigrafo = 0;
    bool Lumigrafo9Numeri = false;
    bool SoloAndroid = false;
    bool SoloUnReparto = false;
    bool ScontrinoFiscale = false;
    bool InDebug = false; ///< set by a marker file and read by nothing
    std::array<LumigrafoAndroid, 3> IpDroid;

    bool Vocale = false;
    std::int16_t VelocitaVocale = 0;
    std::int16_t VolumeVocale = 100;
    std::string DicituraVocale;
    bool VoceAttiva = false; ///< the voice is silent and may start

    bool ModalitaDepennamento = false;
    bool BarCodeInCorso = false;
    bool Occupato = false;         ///< a number is being taken for a cash desk
    bool ScontrinoInCorso = false; ///< a receipt is being issued: the grids aren't rebuilt meanwhile

    std::array<std::int16_t, kCategorie + 1> PezziCategoria{};
    /// Last order placed in each quadrant while the grids are rebuilt.
    std::array<std::int16_t, kQuadranti> UltimoNumero{};
    std::array<std::string, kQuadranti> UltimaSigla;
    /// Last called numbers, by age and quadrant; valid only during an update, which reads the file first.
    std::array<std::array<std::string, kQuadranti>, kUltimi> UltimiChiamati;

    std::array<Griglia, kQuadranti> grid;
    std::unique_ptr<Videata> frmVideata; ///< the board of this run

    /// The board in use. Throws Guasto 91 once the settings dialog has taken it out of memory.
    [[nodiscard]] Videata& videataInUso() const {
        if (!frmVideata)
            throw Guasto(guasti::kOggettoMancante);
        return *frmVideata;
    }
};

} // namespace lumigrafo
