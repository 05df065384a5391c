#pragma once

#include "forms/controlli.h"
#include "platform/ambiente.h"
#include "platform/avvisi.h"
#include "platform/messaggi.h"
#include "platform/sistema.h"
#include "settings/ini/ini.h"
#include "settings/richiami.h"
#include "settings/scelta_carattere.h"
#include "settings/scelta_colore.h"

#include <functional>
#include <string_view>

namespace lumigrafo {

/// What the settings dialog opens or sets off. Each window is modal: the call returns when it is gone.
class AzioniImposta {
public:
    virtual ~AzioniImposta() = default;
    virtual void frmColore(ColoriScelti& colori) = 0;
    virtual void frmFontSize(CarattereScelto& carattere) = 0;
    virtual void frmImpoLumigrafoAndroid() = 0;
    virtual void frmInserisciNumeri() = 0;
    virtual void frmSagoma() = 0;
    /// The fiscal component's own settings and utilities.
    virtual void ImpostazioniFiscali() = 0;
    virtual void UtilitaFiscali() = 0;
    virtual void ApriImpostazioniSchermo() = 0;
    /// Switches on the console's timer of that name.
    virtual void TimerVis() = 0;
};

/// What the settings dialog works with; all of it outlives the window.
struct ServiziImposta {
    const Ambiente& ambiente;
    Messaggi& messaggi;
    Avvisi& avvisi;
    Uscita& uscita;
    RichiamiConsole& richiami;
    AzioniImposta& azioni;
};

/// `frmImposta`, the settings dialog. It works on what its controls hold: nothing reaches the files before
/// `cmdApplica`, which then ends the program. Only the reset of the board's place is written at once.
class Imposta {
public:
    /// The load. Throws Guasto 380 where a stored position lies outside its list, 13 or 6 where a stored
    /// number is none. `chiudi` lets the caller of the window go on; it must not destroy this object.
    Imposta(const ServiziImposta& servizi, std::function<void()> chiudi);

    [[nodiscard]] Controlli& controlli() { return controlli_; }
    void clic(std::string_view nome, int indice);
    /// A right click, on the heading.
    void clicDestro(std::string_view nome, int indice);
    /// The operator chose in a list or ticked a box.
    void cambio(std::string_view nome, int indice);
    /// The focus went to that control; empty where none has it. The on-screen keyboard is there for text
    /// boxes alone.
    void fuoco(std::string_view nome);
    /// A character is about to go into a text box; true keeps it away. In the boxes of counts only digits
    /// pass: the backspace key is kept away with the rest, and a wrong digit is replaced, or removed with the
    /// delete key.
    [[nodiscard]] static bool rifiuta(std::string_view nome, char32_t carattere);

private:
    void PreparaComboCategoria();
    void cboTipoLumigrafo();
    void chkFiscale();
    void cmdApplica();
    void cmdResetta();
    void cmdColore(Controllo& campione);
    void cmdFont(Controllo& campione);
    void cmdTestNumeriRandom();

    ServiziImposta s_;
    std::function<void()> chiudi_;
    FileIni ini_;
    Controlli controlli_;
};

} // namespace lumigrafo
