#pragma once

#include "forms/controlli.h"
#include "platform/ambiente.h"
#include "platform/scelta_cartella.h"
#include "settings/ini/ini.h"

#include <functional>
#include <string_view>

namespace lumigrafo {

/// `frmImpoLumigrafoAndroid`: the three Android boards and the switch for a station without a board of its
/// own. Its OK writes at once, whatever becomes of the settings dialog that it was opened from.
class ImpoLumigrafoAndroid {
public:
    /// Throws Guasto 13 or 6 where a stored font size is no 16-bit number. `chiudi` lets the caller of the
    /// window go on; it must not destroy this object.
    ImpoLumigrafoAndroid(const Ambiente& ambiente, SceltaCartella& sceltaCartella,
                         std::function<void()> chiudi);

    [[nodiscard]] Controlli& controlli() { return controlli_; }
    void clic(std::string_view nome, int indice);
    /// The focus went to that control.
    void fuoco(std::string_view nome);
    /// A slider was moved: its value stands beside it.
    void cambio(std::string_view nome, int indice);

private:
    void cmdApplica();

    FileIni ini_;
    SceltaCartella& sceltaCartella_;
    std::function<void()> chiudi_;
    Controlli controlli_;
};

} // namespace lumigrafo
