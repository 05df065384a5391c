#include "boards/sagoma.h"

#include "boards/modulo_monitor.h"
#include "forms/verifica.h"
#include "platform/guasto.h"

#include <array>
#include <fstream>

namespace lumigrafo {

namespace {

constexpr Twip kLarghezza = 4560;
constexpr Twip kAltezza = 3030;
/// How far beyond the console's edges the two tries go, and how far down its height each of them looks: a
/// monitor beside it needn't begin where it does.
constexpr Twip kOltreDestra = 1000;
constexpr Twip kOltreSinistra = 100;
constexpr std::array kAltezzeProvate{0.0, 0.5, 1.0};

// clang-format off
constexpr std::array<Descrizione, 1> kControlli{{
    {.tipo = Tipo::Etichetta, .nome = "Label", .padre = "", .rett = {135, 210, 3975, 585},
     .carattere = {"Arial", 20.25}, .caption = "Posizionamento ..."},
}};
// clang-format on
static_assert(layoutValido(kControlli));

const Layout kLayoutSagoma{"frmSagoma", "", kLarghezza, kAltezza, rgb(243, 245, 247), kControlli};

} // namespace

void ApriImpostazioniSchermo(const Ambiente& ambiente, Desktop& desktop, Messaggi& messaggi) {
    const auto file = ambiente.file(kFileImpoSchermo);
    if (!(std::ofstream(file, std::ios::binary) << "control.exe desk.cpl,@0,3\r\n").flush())
        throw Guasto(guasti::kAccesso);
    try {
        desktop.apriImpostazioni(file);
    } catch (const Guasto& guasto) {
        if (guasto.numero() != guasti::kFileNonTrovato)
            throw;
        messaggi.MostraMessaggio("Su questo computer non c'è un programma per le impostazioni dello schermo",
                                 4);
    }
}

Sagoma::Sagoma(const ServiziSagoma& servizi, const Rettangolo& console)
    : s_(servizi), console_(console), posto_{console.left, console.top, kLarghezza, kAltezza},
      controlli_(kLayoutSagoma) {}

void Sagoma::sposta(const Rettangolo& posto) {
    posto_ = posto;
    if (mossa_)
        mossa_();
}

bool Sagoma::trovaMonitor(Twip left) {
    for (const double quota : kAltezzeProvate) {
        sposta({left, console_.top + (console_.height - kAltezza) * quota, kLarghezza, kAltezza});
        if (monitorDi(s_.schermi, posto_))
            return true;
    }
    return false;
}

void Sagoma::attiva() {
    s_.pompa.cedi("frmSagoma/1");
    // The console is taken to fill its screen: its width, from where it stands, leads past the right edge.
    if (trovaMonitor(console_.left + console_.width + kOltreDestra) ||
        trovaMonitor(console_.left - kLarghezza - kOltreSinistra)) {
        ConfermaPosizione();
        return;
    }
    // The question stands where the template does: not beside all monitors.
    sposta({console_.left + (console_.width - kLarghezza) * 0.5,
            console_.top + (console_.height - kAltezza) * 0.5, kLarghezza, kAltezza});
    const Risposta risposta = s_.avvisi.chiedi(
        {"Sembra che il secondo monitor non sia collegato oppure che non sia stata impostata la spunta per estendere "
         "il desktop, vuoi impostarlo ora?",
         "Attenzione", Icona::Esclamazione, Bottoni::SiNo});
    if (risposta == Risposta::Si)
        ApriImpostazioniSchermo(s_.ambiente, s_.desktop, s_.messaggi);
}

void Sagoma::ConfermaPosizione() {
    sposta(AdattaAlMonitor(s_.schermi, posto_));
    const FileIni ini(s_.ambiente.file(kFileImpostazioni));
    const std::pair<const char*, Twip> chiavi[] = {
        {"Top", posto_.top}, {"Left", posto_.left}, {"Width", posto_.width}, {"Height", posto_.height}};
    for (const auto& [chiave, valore] : chiavi)
        ini.ScriviIni(kSezioneForm, chiave, static_cast<float>(valore.v));
    s_.messaggi.MostraMessaggio("Posizionamento avvenuto", 3);
}

} // namespace lumigrafo
