#pragma once

#include "forms/controlli.h"
#include "platform/alimentazione.h"
#include "platform/processi.h"
#include "platform/sistema.h"

#include <functional>
#include <string_view>

namespace lumigrafo {

/// The leaving dialog `frmSpegni`: switches the machine off, restarts it, ends the program, or goes back.
class Spegni {
public:
    /// `indietro` closes the dialog. After a power button it stays, and the operating system ends the
    /// program.
    Spegni(Processi& processi, Alimentazione& alimentazione, Uscita& uscita, std::function<void()> indietro);

    [[nodiscard]] Controlli& controlli() { return controlli_; }
    /// A click, by the control's name. `cmdChiudi` ends the process with code 0.
    void clic(std::string_view nome);

private:
    Controlli controlli_;
    Processi& processi_;
    Alimentazione& alimentazione_;
    Uscita& uscita_;
    std::function<void()> indietro_;
};

} // namespace lumigrafo
