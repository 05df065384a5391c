#include "app/dialoghi_qt.h"

#include "boards/qt/sagoma_qt.h"
#include "settings/qt/comunicazione_qt.h"
#include "settings/qt/ripristina_qt.h"
#include "settings/qt/spegni_qt.h"

#include <utility>

namespace lumigrafo {

DialoghiQt::DialoghiQt(const ServiziSagoma& sagoma, Processi& processi, Alimentazione& alimentazione,
                       Uscita& uscita, Orologio& orologio, FinestreFiscali& fiscali,
                       std::function<Rettangolo()> console, std::function<RichiamiConsole&()> richiami)
    : sagoma_(sagoma), console_(std::move(console)), richiami_(std::move(richiami)), processi_(processi),
      alimentazione_(alimentazione), uscita_(uscita), orologio_(orologio), fiscali_(fiscali) {}

void DialoghiQt::manca(const char* cosa) {
    sagoma_.avvisi.chiedi({std::string(cosa) + " non è disponibile in questa versione.", "Lumigrafo",
                           Icona::Informazione, Bottoni::Ok});
}

void DialoghiQt::frmSpegni() {
    mostraSpegni(processi_, alimentazione_, uscita_);
}

void DialoghiQt::frmSagoma() {
    mostraSagoma(sagoma_, console_());
}

void DialoghiQt::frmDatabase() {
    manca("La scelta della cartella dell'archivio");
}
void DialoghiQt::frmRipristina() {
    mostraRipristina({sagoma_.ambiente, richiami_(), orologio_, sagoma_.pompa});
}
void DialoghiQt::frmInserisciNumeri() {
    manca("Il caricamento dei numeri");
}
void DialoghiQt::frmComunicazione() {
    mostraComunicazione({sagoma_.ambiente, richiami_(), sagoma_.desktop, sagoma_.messaggi});
}
void DialoghiQt::frmImposta() {
    manca("La finestra delle impostazioni");
}
void DialoghiQt::UtilitaFiscali() {
    fiscali_.UtilitaFiscali();
}

bool DialoghiQt::ChiediPassword(const std::string&, const std::string&) {
    manca("La richiesta della password");
    return false;
}

} // namespace lumigrafo
