#pragma once

#include "forms/qt/figura.h"
#include "forms/qt/superficie.h"

namespace lumigrafo {

/// A picture of the resources or a file's, over the control's back colour.
class ImmagineWidget final : public Superficie {
public:
    using Superficie::Superficie;
    void mostra(const Controllo& controllo, const Resa& resa) override;
    /// Reads the picture that the control names now; see Figura::carica for its failures.
    void carica(const Controllo& controllo);
    /// Waits until the picture asked for last is the one that is painted; throws its failure.
    void attendi() { figura_.attendi(); }

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    [[nodiscard]] QRect area() const;

    Figura figura_{[this] { update(); }};
    Adattamento modo_ = Adattamento::Intera;
    int margine_ = 0; ///< pixels left free at the foot
    std::optional<Colore> sfondo_;
};

} // namespace lumigrafo
