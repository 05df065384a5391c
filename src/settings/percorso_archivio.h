#pragma once

#include "forms/controlli.h"
#include "platform/ambiente.h"
#include "platform/messaggi.h"
#include "platform/processi.h"
#include "platform/scelta_cartella.h"
#include "settings/ini/ini.h"

#include <functional>
#include <string_view>

namespace lumigrafo {

/// What the archive's path is set with; all of it outlives the window.
struct ServiziPercorso {
    const Ambiente& ambiente;
    Messaggi& messaggi;
    Processi& processi;
    SceltaCartella& sceltaCartella;
};

/// `frmDatabase`: the folder of the archive. Its OK writes the text as it is and starts the program anew
/// beside this one, which goes on: whoever wants it to end sees to it.
class PercorsoArchivio {
public:
    /// `chiudi` lets the caller of the window go on; it must not destroy this object.
    PercorsoArchivio(const ServiziPercorso& servizi, std::function<void()> chiudi);

    [[nodiscard]] Controlli& controlli() { return controlli_; }
    /// Throws Guasto 53 where the program can't be started anew; the setting is written by then.
    void clic(std::string_view nome, int indice);
    void mostrata() { controlli_("txtPathDB").SetFocus(); }

private:
    void cmdApplica();

    ServiziPercorso s_;
    std::function<void()> chiudi_;
    FileIni ini_;
    Controlli controlli_;
};

} // namespace lumigrafo
