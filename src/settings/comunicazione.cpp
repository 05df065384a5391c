#include "settings/comunicazione.h"

#include "platform/guasto.h"
#include "settings/layout_comunicazione.h"

#include <utility>

namespace lumigrafo {

namespace {

constexpr std::string_view kFineRiga = "\r\n";
/// What stands for a line end in the file; a typed one comes back as a line end.
constexpr std::string_view kSegnoRiga = "\\";
constexpr const char* kTastieraDiWindows = "C:\\WINDOWS\\SYSTEM32\\OSK.EXE";

std::string sostituisci(const std::string& testo, std::string_view cerca, std::string_view con) {
    std::string nuovo;
    std::size_t da = 0;
    for (std::size_t p; (p = testo.find(cerca, da)) != std::string::npos; da = p + cerca.size())
        nuovo.append(testo, da, p - da).append(con);
    return nuovo.append(testo, da);
}

} // namespace

Comunicazione::Comunicazione(const ServiziComunicazione& servizi, std::function<void()> invio,
                             std::function<void()> chiudi)
    : controlli_(kLayoutComunicazione), s_(servizi), messaggi_(servizi.ambiente.file(kFileMessaggi)),
      invio_(std::move(invio)), chiudi_(std::move(chiudi)) {
    ignorandoGuasti([this] {
        controlli_("lblMessaggio", 0).Caption(messaggi_.LeggiIni(kSezioneImpostazioni, "Messaggio0"));
    });
}

void Comunicazione::clic(std::string_view nome, int indice) {
    if (nome == "lblMessaggio")
        lblMessaggio(indice);
    else if (nome == "cmdLeggi")
        s_.console.Parla(controlli_("txtComunicazione").Caption());
    else if (nome == "cmdVisualizza")
        cmdVisualizza();
    else if (nome == "cmdTastiera")
        cmdTastiera();
    else if (nome == "lblEnter")
        invio_();
    else if (nome == "cmdUscita")
        cmdUscita();
}

void Comunicazione::lblMessaggio(int indice) {
    controlli_("txtComunicazione")
        .Caption(sostituisci(controlli_("lblMessaggio", indice).Caption(), kSegnoRiga, kFineRiga));
}

void Comunicazione::cmdVisualizza() {
    Controlli& frmVideata = s_.console.frmVideata();
    frmVideata("lblComunicazione").Caption(controlli_("txtComunicazione").Caption());
    frmVideata("picComunicazione").ZOrder();
    frmVideata("picComunicazione").Visible(true);
    s_.console.RidisegnaVideata();
}

void Comunicazione::cmdTastiera() {
    if (!ignorandoGuasti([this] { s_.desktop.apriTastiera(kTastieraDiWindows); }))
        s_.messaggi.MostraMessaggio("Nessuna tastiera di sistema su questo computer", 2);
}

void Comunicazione::cmdUscita() {
    s_.console.frmVideata()("picComunicazione").Visible(false);
    ignorandoGuasti([this] { salva(); });
    ignorandoGuasti([this] { chiudi_(); });
}

/// The second label always has its built-in text, so that once the first place is taken every message goes to
/// the third, which nobody reads.
void Comunicazione::salva() {
    const std::string testo = sostituisci(controlli_("txtComunicazione").Caption(), kFineRiga, kSegnoRiga);
    if (testo.empty())
        return;
    int posto = 0;
    while (posto < 2 && !controlli_("lblMessaggio", posto).Caption().empty())
        ++posto;
    messaggi_.ScriviIni(kSezioneImpostazioni, "Messaggio" + std::to_string(posto), testo);
}

} // namespace lumigrafo
