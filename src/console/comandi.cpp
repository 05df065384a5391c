#include "console/comandi.h"

#include "console/dialogo.h"

#include <chrono>
#include <filesystem>

namespace lumigrafo {

using namespace std::chrono_literals;

Comandi::Comandi(ContestoConsole& contesto)
    : c_(contesto), timerBottoni_(c_.porte.timers.crea(5000ms, [this] { NascondiBottoni(); })) {
    timerBottoni_->abilita(true);
}

void Comandi::NascondiBottoni() {
    timerBottoni_->abilita(false);
    c_.controlli("fraBottoni").Visible(false);
}

void Comandi::cmdAllarga() {
    Controllo& pannello = c_.controlli("fraBottoni");
    pannello.Visible(true);
    pannello.ZOrder();
    timerBottoni_->abilita(true);
}

void Comandi::cmdLumigrafo() {
    NascondiBottoni();
    c_.stato.frmVideata->Mostra();
    c_.cedi("cmdLumigrafo/1");
    c_.stato.frmVideata->Riduci(c_.porte.ambiente.ridotta() || c_.stato.SoloAndroid);
    c_.finestra.Mostra();
    c_.fuocoSuTxtBarCode();
}

void Comandi::cmdModalita() {
    c_.stato.ModalitaDepennamento = !c_.stato.ModalitaDepennamento;
    const char* modalita = c_.stato.ModalitaDepennamento ? "Modalità depennamento" : "Modalità lumigrafo";
    c_.controlli("cmdModalita", 0).Caption(modalita);
    c_.controlli("cmdModalita", 1).Caption(modalita);
    c_.porte.messaggi.MostraMessaggio(modalita, 0);
    NascondiBottoni();
    c_.fuocoSuTxtBarCode();
}

void Comandi::cmdPulisciLumigrafo() {
    std::error_code ignorato; // no file is no failure
    std::filesystem::remove(c_.videata.file(), ignorato);
    c_.stato.frmVideata->Scarica();
    c_.cedi("cmdPulisciLumigrafo/prima");
    cmdLumigrafo();
    c_.cedi("cmdPulisciLumigrafo/dopo");
    c_.fuocoSuTxtBarCode();
}

void Comandi::cmdUscita() {
    NascondiBottoni();
    dialogo(c_, [this] { c_.porte.dialoghi.frmSpegni(); });
}

void Comandi::cmdRiavvia() {
    c_.stato.Db->Close();
    c_.cedi("cmdRiavvia/1");
    c_.porte.processi.avvia(c_.porte.ambiente.eseguibile, {"RIAVVIO"}, StileFinestra::Ridotta);
    c_.porte.orologio.attendi(400ms); // the new instance begins meanwhile
    c_.porte.uscita.termina(0);
}

void Comandi::cmdSpegni() {
    FermaPrimoPiano(c_.porte.processi);
    c_.porte.alimentazione.spegni();
}

} // namespace lumigrafo
