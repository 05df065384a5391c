#pragma once

#include "forms/controlli.h"

#include <cstdint>
#include <string>

namespace lumigrafo {

/// The board window in use, as the console refers to it for the whole run (`frmVideata`). The window itself
/// comes and goes: it is loaded by the first use of its controls or by a show, and unloaded by its own close
/// control, by the console and by the end of the run. A use after an unload loads it anew.
class Videata {
public:
    virtual ~Videata() = default;
    /// The labels that the console writes by name and index: `lblNumero1`.. of each slot, and the message
    /// panel.
    virtual Controlli& controlli() = 0;
    [[nodiscard]] virtual bool caricata() const = 0;
    /// Shows the window and raises it; a loaded window isn't loaded again.
    virtual void Mostra() = 0;
    virtual void Nascondi() = 0;
    /// Paints at once what has changed.
    virtual void Ridisegna() = 0;
    /// Minimised or normal.
    virtual void Riduci(bool ridotta) = 0;
    /// Top, Left, Width, Height in twips of the desktop.
    virtual void Posiziona(const Rettangolo& posto) = 0;
    /// Starts the blink of a slot's newest number; an index that the board hasn't does nothing.
    virtual void Blinka(std::int16_t indice) = 0;
    /// The next-customer board: desk `Cassa` ("A" to "E") serves `Numero`, and its row blinks. Other boards
    /// ignore it.
    virtual void Lampeggia(const std::string& Cassa, const std::string& Numero) = 0;
    /// Closes the window, which saves its geometry. Nothing happens where it isn't loaded.
    virtual void Scarica() = 0;
};

} // namespace lumigrafo
