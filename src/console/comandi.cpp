#include "console/comandi.h"

#include "console/dialogo.h"

#include <chrono>
#include <filesystem>

namespace lumigrafo {

using namespace std::chrono_literals;

namespace {

/// Where the board goes, as the last placement or the last board left it.
Rettangolo postoSalvato(const FileIni& ini) {
    const auto leggi = [&ini](const char* chiave, int predefinito) {
        return Twip(aSingolo(ini.LeggiIni(kSezioneForm, chiave, predefinito)));
    };
    const Twip top = leggi("Top", 0);
    const Twip left = leggi("Left", 0);
    const Twip width = leggi("Width", 12000);
    return {left, top, width, leggi("Height", 9000)};
}

} // namespace

Comandi::Comandi(ContestoConsole& contesto, Timer& Timer1)
    : c_(contesto), Timer1_(Timer1),
      timerBottoni_(c_.porte.timers.crea(5000ms, [this] { NascondiBottoni(); })),
      timerPrimoPiano_(c_.porte.timers.crea(4000ms, [this] { timerPrimoPiano(); })),
      TimerVis_(c_.porte.timers.crea(2000ms, [] {})) {
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
    c_.frmVideata().Mostra();
    c_.cedi("cmdLumigrafo/1");
    c_.frmVideata().Riduci(c_.porte.ambiente.ridotta() || c_.stato.SoloAndroid);
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
    c_.frmVideata().Scarica();
    c_.cedi("cmdPulisciLumigrafo/prima");
    cmdLumigrafo();
    c_.cedi("cmdPulisciLumigrafo/dopo");
    c_.fuocoSuTxtBarCode();
}

void Comandi::cmdPosizionaLumigrafo() {
    NascondiBottoni();
    FermaPrimoPiano(c_.porte.processi);
    cmdLumigrafo(); // the board must exist
    c_.frmVideata().Nascondi();
    ignorandoGuasti([this] { c_.porte.desktop.estendi(); });
    c_.porte.orologio.attendi(2000ms);
    c_.finestra.Massimizza(); // the new display layout may have moved it
    c_.cedi("cmdPosizionaLumigrafo/4");
    c_.finestra.Ridisponi();
    c_.porte.orologio.attendi(1000ms);
    c_.porte.dialoghi.frmSagoma();
    c_.frmVideata().Mostra();
    c_.frmVideata().Posiziona(postoSalvato(c_.impostazioni));
    c_.fuocoSuTxtBarCode();
}

void Comandi::timerPrimoPiano() {
    if (!c_.porte.ambiente.ridotta())
        ignorandoGuasti([this] {
            c_.porte.processi.avvia(c_.porte.ambiente.file("PrimoPiano.exe"),
                                    {std::string(c_.controlli.layout().titolo)}, StileFinestra::Normale);
        });
    timerPrimoPiano_->abilita(false);
}

void Comandi::cmdUscita() {
    NascondiBottoni();
    dialogo(c_, [this] { c_.porte.dialoghi.frmSpegni(); });
}

void Comandi::cmdRiavvia() {
    // A rebuild or a desk's request without an archive would end the program before the new one is started,
    // and that one listens at once.
    Timer1_.abilita(false);
    c_.porte.server.Chiudi();
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
