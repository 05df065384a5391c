#pragma once

#include "forms/qt/superficie.h"
#include "forms/qt/testo_adattato.h"

namespace lumigrafo {

/// A label. Without a back colour only its text is painted, over whatever lies behind.
class EtichettaWidget final : public Superficie {
public:
    using Superficie::Superficie;
    void mostra(const Controllo& controllo, const Resa& resa) override;
    [[nodiscard]] const TestoAdattato& testo() const { return testo_; }
    /// Where the text goes: all of the label that its container lets see, less a margin where a coloured edge
    /// would touch the text. A label that stands at the top keeps to the height of a line at its own size, so
    /// that one which shrank stays beside its neighbours; on a window that grew more in height than in width
    /// that is as much of the label as at the design.
    [[nodiscard]] QRect area() const;

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    TestoAdattato testo_;
    Colore tinta_;
    std::optional<Colore> sfondo_;
    int raggio_ = 0;
    int margine_ = 0;
    int altezza_ = QWIDGETSIZE_MAX; ///< of the text's area, at most
};

} // namespace lumigrafo
