#include "app/dialoghi_qt.h"

#include "boards/qt/sagoma_qt.h"
#include "settings/impo_lumigrafo_android.h"
#include "settings/inserisci_numeri.h"
#include "settings/percorso_archivio.h"
#include "settings/qt/comunicazione_qt.h"
#include "settings/qt/dialogo_qt.h"
#include "settings/qt/password_qt.h"
#include "settings/qt/ripristina_qt.h"
#include "settings/qt/spegni_qt.h"

#include <utility>

namespace lumigrafo {

DialoghiQt::DialoghiQt(const ServiziSagoma& sagoma, Processi& processi, Alimentazione& alimentazione,
                       Uscita& uscita, Orologio& orologio, std::function<Rettangolo()> console,
                       std::function<RichiamiConsole&()> richiami, ServiziImpostazioni impostazioni)
    : sagoma_(sagoma), console_(std::move(console)), richiami_(std::move(richiami)), processi_(processi),
      alimentazione_(alimentazione), uscita_(uscita), orologio_(orologio),
      impostazioni_(std::move(impostazioni)) {}

void DialoghiQt::frmSpegni() {
    mostraSpegni(processi_, alimentazione_, uscita_);
}

void DialoghiQt::frmSagoma() {
    mostraSagoma(sagoma_, console_());
}

void DialoghiQt::frmDatabase() {
    mostraDialogo<PercorsoArchivio>(
        ServiziPercorso{sagoma_.ambiente, sagoma_.messaggi, processi_, impostazioni_.sceltaCartella});
}

void DialoghiQt::frmRipristina() {
    mostraRipristina({sagoma_.ambiente, richiami_(), orologio_, sagoma_.pompa});
}
void DialoghiQt::frmInserisciNumeri() {
    mostraDialogo<InserisciNumeri>(ServiziInserimento{DBEngine::Workspaces(0), richiami_().contestoDati().Db,
                                                      sagoma_.pompa, sagoma_.avvisi, sagoma_.messaggi});
}

void DialoghiQt::frmComunicazione() {
    mostraComunicazione({sagoma_.ambiente, richiami_(), sagoma_.desktop, sagoma_.messaggi});
}
void DialoghiQt::frmImposta() {
    mostraDialogo<Imposta>(
        ServiziImposta{sagoma_.ambiente, sagoma_.messaggi, sagoma_.avvisi, uscita_, richiami_(), *this});
}

void DialoghiQt::frmColore(ColoriScelti& colori) {
    mostraDialogo<SceltaColore>(colori);
}

void DialoghiQt::frmFontSize(CarattereScelto& carattere) {
    mostraDialogo<SceltaCarattere>(carattere);
}

void DialoghiQt::frmImpoLumigrafoAndroid() {
    mostraDialogo<ImpoLumigrafoAndroid>(sagoma_.ambiente, impostazioni_.sceltaCartella);
}

void DialoghiQt::ApriImpostazioniSchermo() {
    lumigrafo::ApriImpostazioniSchermo(sagoma_.ambiente, sagoma_.desktop, sagoma_.messaggi);
}

void DialoghiQt::TimerVis() {
    impostazioni_.TimerVis();
}

void DialoghiQt::UtilitaFiscali() {
    impostazioni_.fiscali.UtilitaFiscali();
}

void DialoghiQt::ImpostazioniFiscali() {
    impostazioni_.fiscali.ImpostazioniFiscali();
}

bool DialoghiQt::ChiediPassword(const std::string& messaggio, const std::string& attesa) {
    domanda_.MessaggioPassword = messaggio;
    domanda_.PasswordAttesa = attesa;
    return chiediPassword({sagoma_.pompa, orologio_, impostazioni_.sistema}, domanda_);
}

} // namespace lumigrafo
