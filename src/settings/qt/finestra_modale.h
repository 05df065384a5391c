#pragma once

#include <QEventLoop>

namespace lumigrafo {

class Finestra;

/// The time of one modal window: shown in the middle of the operator's monitor, in proportion to it, over the
/// window that is active now. Nothing else can be clicked meanwhile.
class FinestraModale {
public:
    /// Returns after `fine`, or after the window was closed.
    void esegui(Finestra& finestra);
    /// The window goes out of sight at once, though its loop may have to wait for one that was started inside
    /// it.
    void fine();

private:
    QEventLoop ciclo_;
    Finestra* vista_ = nullptr;
};

} // namespace lumigrafo
