#pragma once

#include "data/cls_recordset.h"
#include "forms/controlli.h"

#include <cstdint>
#include <string>

namespace lumigrafo {

/// What the dialogs call back in the console and its board.
class RichiamiConsole {
public:
    virtual ~RichiamiConsole() = default;
    /// Rebuilds the console's grids from the archive; the argument changes nothing.
    virtual void CaricaVideataInizio(bool periodica) = 0;
    /// Writes the served state of an order back. `index`: the quadrant, 0..2; `servito`: -1 sets the marks, 0
    /// takes them off. A failing statement throws Guasto.
    virtual void AggiornaDBLumigrafoCucina(const std::string& sigla, const std::string& numero,
                                           std::int16_t index, std::int16_t servito) = 0;
    /// Pushes the board to the Android boards; `last` is the quadrant that changed.
    virtual void SincronizzaLumAndroid(std::int16_t last) = 0;
    /// Speaks a text at once, over anything in progress.
    virtual void Parla(const std::string& testo) = 0;
    /// Takes the board out of memory for the rest of the run. Failures are ignored.
    virtual void ScaricaLumigrafo() = 0;

    /// Caption of the console's department heading of a quadrant.
    [[nodiscard]] virtual std::string lblReparto(int quadrante) const = 0;
    /// Category code of quadrant 0..2, or the further one of quadrant 0 for 3; 0 is none.
    [[nodiscard]] virtual std::int16_t Categoria(int quadrante) const = 0;
    /// The elements of the board in use, by name; they load a board that is away. Throws Guasto 91 after
    /// `ScaricaLumigrafo`.
    [[nodiscard]] virtual Controlli& frmVideata() = 0;
    /// Paints at once what has changed on the board. Throws as `frmVideata`.
    virtual void RidisegnaVideata() = 0;
    /// What record sets on the console's archive work with.
    [[nodiscard]] virtual ContestoDati contestoDati() = 0;
};

} // namespace lumigrafo
