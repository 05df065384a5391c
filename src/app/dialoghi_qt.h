#pragma once

#include "announce/fiscale.h"
#include "boards/sagoma.h"
#include "platform/alimentazione.h"
#include "platform/avvisi.h"
#include "platform/orologio.h"
#include "platform/processi.h"
#include "platform/sistema.h"
#include "settings/dialoghi.h"
#include "settings/richiami.h"

#include <functional>

namespace lumigrafo {

/// The dialogs as windows. Those that this version doesn't have yet say so.
class DialoghiQt : public Dialoghi {
public:
    /// `console`: where the console stands on the desktop, twips. `richiami`: what dialogs call back in it.
    DialoghiQt(const ServiziSagoma& sagoma, Processi& processi, Alimentazione& alimentazione, Uscita& uscita,
               Orologio& orologio, FinestreFiscali& fiscali, std::function<Rettangolo()> console,
               std::function<RichiamiConsole&()> richiami);

    void frmSpegni() override;
    void frmDatabase() override;
    void frmRipristina() override;
    void frmInserisciNumeri() override;
    void frmComunicazione() override;
    void frmImposta() override;
    void frmSagoma() override;
    void UtilitaFiscali() override;
    bool ChiediPassword(const std::string& messaggio, const std::string& attesa) override;

private:
    void manca(const char* cosa);

    ServiziSagoma sagoma_;
    std::function<Rettangolo()> console_;
    std::function<RichiamiConsole&()> richiami_;
    Processi& processi_;
    Alimentazione& alimentazione_;
    Uscita& uscita_;
    Orologio& orologio_;
    FinestreFiscali& fiscali_;
};

} // namespace lumigrafo
