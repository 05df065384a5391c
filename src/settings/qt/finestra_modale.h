#pragma once

#include <QEventLoop>

#include <functional>

namespace lumigrafo {

class Finestra;

/// The time of one modal window: shown in the middle of the operator's monitor, in proportion to it, over the
/// window that is active now. Nothing else can be clicked meanwhile. Escape gives up: it presses
/// `cmdAnnulla`, or closes a window without it.
class FinestraModale {
public:
    /// The window has no other way out than its own buttons: the system's close and Escape are refused.
    void soloDaDentro() { chiudibile_ = false; }
    /// Returns after `fine`, or after the window was closed. `mostrata` runs once it is on show: a control
    /// that is to have the focus gets it there; else none has it.
    void esegui(Finestra& finestra, const std::function<void()>& mostrata = {});
    /// The window goes out of sight at once, though its loop may have to wait for one that was started inside
    /// it.
    void fine();

private:
    QEventLoop ciclo_;
    Finestra* vista_ = nullptr;
    bool chiudibile_ = true;
};

} // namespace lumigrafo
