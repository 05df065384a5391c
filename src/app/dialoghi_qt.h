#pragma once

#include "platform/alimentazione.h"
#include "platform/avvisi.h"
#include "platform/processi.h"
#include "platform/sistema.h"
#include "settings/dialoghi.h"

namespace lumigrafo {

/// The dialogs as windows. Those that this version doesn't have yet say so.
class DialoghiQt : public Dialoghi {
public:
    DialoghiQt(Avvisi& avvisi, Processi& processi, Alimentazione& alimentazione, Uscita& uscita);

    void frmSpegni() override;
    void frmDatabase() override;
    void frmRipristina() override;
    void frmInserisciNumeri() override;
    void frmComunicazione() override;
    void frmImposta() override;
    void PosizionaLumigrafo() override;
    void UtilitaFiscali() override;
    bool ChiediPassword(const std::string& richiesta) override;

private:
    void manca(const char* cosa);

    Avvisi& avvisi_;
    Processi& processi_;
    Alimentazione& alimentazione_;
    Uscita& uscita_;
};

} // namespace lumigrafo
