#pragma once

#include "forms/qt/superficie.h"
#include "forms/qt/testo_adattato.h"

namespace lumigrafo {

/// A sheet with a title at its top, for controls that belong together.
class GruppoWidget final : public Superficie {
public:
    using Superficie::Superficie;
    void mostra(const Controllo& controllo, const Resa& resa) override;

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    TestoAdattato titolo_;
    Colore tinta_;
    std::optional<Colore> sfondo_;
    int raggio_ = 0;
};

} // namespace lumigrafo
