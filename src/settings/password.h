#pragma once

#include "forms/controlli.h"
#include "platform/conversioni.h"
#include "platform/orologio.h"
#include "platform/pompa.h"
#include "platform/sistema.h"

#include <functional>
#include <string>
#include <string_view>

namespace lumigrafo {

/// What is asked and what came out; it outlives the window. The answer isn't cleared before: each way out of
/// the window sets it.
struct DomandaPassword {
    std::string PasswordAttesa;
    std::string MessaggioPassword;
    Vero16 EsitoPassword = kFalso;
};

/// What the keypad works with; all of it outlives the window.
struct ServiziPassword {
    Pompa& pompa;
    Orologio& orologio;
    Sistema& sistema;
};

/// The numeric keypad `frmPassword`: digits by touch or by keyboard, shown as stars.
class Password {
public:
    /// `chiudi` lets the caller of the window go on; it must not destroy this object.
    Password(const ServiziPassword& servizi, DomandaPassword& domanda, std::function<void()> chiudi);

    [[nodiscard]] Controlli& controlli() { return controlli_; }
    /// A click, by the control's name and index.
    void clic(std::string_view nome, int indice);
    /// A key. A digit counts, and its button looks pressed for 100 ms, in which the thread is blocked. True
    /// for a digit; anything else does nothing, so that no Enter confirms.
    bool tasto(char32_t carattere);

private:
    void cifra(int i);
    void azzera();
    void cmdOK();

    ServiziPassword s_;
    DomandaPassword& domanda_;
    std::function<void()> chiudi_;
    Controlli controlli_;
    std::string cifre_;
};

} // namespace lumigrafo
