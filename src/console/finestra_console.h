#pragma once

namespace lumigrafo {

/// The console's window, as its logic uses it beyond its controls.
class FinestraConsole {
public:
    virtual ~FinestraConsole() = default;
    /// Shows the window and gives it the keyboard back.
    virtual void Mostra() = 0;
    /// Brings it in front of every other window of the desktop.
    virtual void InPrimoPiano() = 0;
    /// Paints at once what has changed.
    virtual void Ridisegna() = 0;
    virtual void Massimizza() = 0;
    /// Lays its controls out anew for the size that it has now.
    virtual void Ridisponi() = 0;
    /// The menu entry of the fiscal utilities.
    virtual void mnuFiscaleVisibile(bool visibile) = 0;
};

} // namespace lumigrafo
