#include "app/dialoghi_qt.h"

#include "settings/qt/spegni_qt.h"

namespace lumigrafo {

DialoghiQt::DialoghiQt(Avvisi& avvisi, Processi& processi, Alimentazione& alimentazione, Uscita& uscita)
    : avvisi_(avvisi), processi_(processi), alimentazione_(alimentazione), uscita_(uscita) {}

void DialoghiQt::manca(const char* cosa) {
    avvisi_.chiedi({std::string(cosa) + " non è disponibile in questa versione.", "Lumigrafo",
                    Icona::Informazione, Bottoni::Ok});
}

void DialoghiQt::frmSpegni() {
    mostraSpegni(processi_, alimentazione_, uscita_);
}

void DialoghiQt::frmDatabase() {
    manca("La scelta della cartella dell'archivio");
}
void DialoghiQt::frmRipristina() {
    manca("Il ripristino di un numero");
}
void DialoghiQt::frmInserisciNumeri() {
    manca("Il caricamento dei numeri");
}
void DialoghiQt::frmComunicazione() {
    manca("Il messaggio al pubblico");
}
void DialoghiQt::frmImposta() {
    manca("La finestra delle impostazioni");
}
void DialoghiQt::PosizionaLumigrafo() {
    manca("Il posizionamento sul secondo monitor");
}
void DialoghiQt::UtilitaFiscali() {
    manca("L'utilità fiscale");
}

bool DialoghiQt::ChiediPassword(const std::string&) {
    manca("La richiesta della password");
    return false;
}

} // namespace lumigrafo
