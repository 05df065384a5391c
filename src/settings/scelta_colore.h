#pragma once

#include "forms/controlli.h"

#include <cstdint>
#include <functional>
#include <string_view>

namespace lumigrafo {

/// What goes into the colour picker and comes out of it; it outlives the window.
struct ColoriScelti {
    std::int32_t ColoreSfondoScelto = 0;
    std::int32_t ColoreTestoScelto = 0;
};

/// The colour picker `frmColore`: a text and a back colour out of fixed fields. Only its OK changes what went
/// in.
class SceltaColore {
public:
    /// `chiudi` lets the caller of the window go on; it must not destroy this object.
    SceltaColore(ColoriScelti& colori, std::function<void()> chiudi);

    [[nodiscard]] Controlli& controlli() { return controlli_; }
    void clic(std::string_view nome, int indice);

private:
    ColoriScelti& colori_;
    std::function<void()> chiudi_;
    Controlli controlli_;
    Colore sfondo_, testo_;
};

} // namespace lumigrafo
