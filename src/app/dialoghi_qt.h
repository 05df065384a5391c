#pragma once

#include "announce/fiscale.h"
#include "boards/sagoma.h"
#include "platform/alimentazione.h"
#include "platform/avvisi.h"
#include "platform/orologio.h"
#include "platform/processi.h"
#include "platform/scelta_cartella.h"
#include "platform/sistema.h"
#include "settings/dialoghi.h"
#include "settings/imposta.h"
#include "settings/password.h"
#include "settings/richiami.h"

#include <functional>

namespace lumigrafo {

/// What the windows of settings work with, beside what all dialogs have.
struct ServiziImpostazioni {
    Sistema& sistema;
    SceltaCartella& sceltaCartella;
    FinestreFiscali& fiscali;
    std::function<void()> TimerVis; ///< switches on the console's timer of that name
};

/// The dialogs as windows.
class DialoghiQt : public Dialoghi, public AzioniImposta {
public:
    /// `console`: where the console stands on the desktop, twips. `richiami`: what dialogs call back in it.
    DialoghiQt(const ServiziSagoma& sagoma, Processi& processi, Alimentazione& alimentazione, Uscita& uscita,
               Orologio& orologio, std::function<Rettangolo()> console,
               std::function<RichiamiConsole&()> richiami, ServiziImpostazioni impostazioni);

    void frmSpegni() override;
    void frmDatabase() override;
    void frmRipristina() override;
    void frmInserisciNumeri() override;
    void frmComunicazione() override;
    void frmImposta() override;
    void frmSagoma() override;
    void UtilitaFiscali() override;
    void frmColore(ColoriScelti& colori) override;
    void frmFontSize(CarattereScelto& carattere) override;
    void frmImpoLumigrafoAndroid() override;
    void ImpostazioniFiscali() override;
    void ApriImpostazioniSchermo() override;
    void TimerVis() override;
    bool ChiediPassword(const std::string& messaggio, const std::string& attesa) override;

private:
    ServiziSagoma sagoma_;
    std::function<Rettangolo()> console_;
    std::function<RichiamiConsole&()> richiami_;
    Processi& processi_;
    Alimentazione& alimentazione_;
    Uscita& uscita_;
    Orologio& orologio_;
    ServiziImpostazioni impostazioni_;
    DomandaPassword domanda_;
};

} // namespace lumigrafo
