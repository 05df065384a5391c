#pragma once

#include "forms/controlli.h"

#include <functional>
#include <string>
#include <string_view>

namespace lumigrafo {

/// What goes into the font picker and comes out of it; it outlives the window.
struct CarattereScelto {
    std::string NomeFontScelto;
    std::string DimensioneFontScelta; ///< a size as text, with a point or a comma
};

/// The font picker `frmFontSize`. Only its OK changes what went in. A font that isn't in its list comes out
/// as the first one, and a size beyond the slider's ends as the nearer end.
class SceltaCarattere {
public:
    /// Throws Guasto 13 where the size is no number. `chiudi` lets the caller of the window go on; it must
    /// not destroy this object.
    SceltaCarattere(CarattereScelto& scelto, std::function<void()> chiudi);

    [[nodiscard]] Controlli& controlli() { return controlli_; }
    void clic(std::string_view nome, int indice);
    /// The operator chose in the list or moved the slider.
    void cambio(std::string_view nome, int indice);

private:
    void lstFont();
    void sldFontSize();

    CarattereScelto& scelto_;
    std::function<void()> chiudi_;
    Controlli controlli_;
};

} // namespace lumigrafo
