#include "boards/scheda.h"

#include "boards/layout_videate.h"
#include "platform/conversioni.h"

#include <utility>

namespace lumigrafo {

namespace {

/// The timer of the third department works the opposite way.
Lampeggio::Forma formaDi(int slot, int slots) {
    return slots == 3 && slot == 2 ? Lampeggio::Forma::Rovesciata : Lampeggio::Forma::Diritta;
}

std::string conCifra(std::string_view parola, int cifra) {
    return std::string(parola) + std::to_string(cifra);
}

} // namespace

Scheda::Scheda(TipoVideata tipo, const ServiziSchede& servizi)
    : riga_(famiglia(tipo)), servizi_(servizi), impostazioni_(servizi.ambiente.file(kFileImpostazioni)),
      videata_(servizi.ambiente.file(kFileVideata)), controlli_(std::make_shared<Controlli>(layoutDi(tipo))) {
    for (int slot = 0; slot < riga_.lampeggi; ++slot)
        lampeggi_.push_back(
            std::make_unique<Lampeggio>(servizi.timers, formaDi(slot, riga_.lampeggi), NumeroLampeggi,
                                        [this, slot](bool usuale) { faseLampeggio(slot, usuale); }));
    if (const RigaPubblicita* pubblicita = rigaPubblicita(tipo))
        pubblicita_.emplace(*pubblicita, *controlli_, servizi.timers, servizi.ambiente.cartella);
}

void Scheda::Carica(std::unique_ptr<FinestraVideata> finestra) {
    finestra_ = std::move(finestra);
    Posizionata = false;
    copriConComunicazione();
    if (Controllo* titolo = modulo().cerca("lblTitoloLumigrafo"))
        titolo->Caption(impostazione("TitoloLumigrafo", "STIAMO SERVENDO I NUMERI"));
    vesti();
    NumeroLampeggi = aIntero16(impostazione("NumeroLampeggi", 20));
    if (pubblicita_)
        pubblicita_->prepara(impostazioni_);
    servizi_.pompa.cedi("Videata/Load");
    if (!finestra_)
        return; // unloaded by one of those events
    finestra_->riduci(riga_.minimizzata.vale(stato()));
    finestra_->titolo("");
    if (pubblicita_)
        pubblicita_->concludi(impostazioni_);
}

void Scheda::copriConComunicazione() {
    Controllo* pannello = modulo().cerca("picComunicazione");
    if (!pannello)
        return;
    const Layout& layout = modulo().layout();
    pannello->Posto({0, 0, layout.larghezza, layout.altezza});
    modulo()("lblComunicazione").Posto({0, 0, pannello->Width(), pannello->Height()});
}

Condizione Scheda::stato() const {
    return {.soloAndroid = servizi_.console.SoloAndroid(), .ridotta = servizi_.ambiente.ridotta()};
}

void Scheda::Attiva() {
    riprendiPosto();
    if (finestra_)
        attivata();
}

void Scheda::riprendiPosto() {
    if (!finestra_ || Posizionata || riga_.nonPosizionata.vale(stato()))
        return;
    Rettangolo posto;
    posto.top = aSingolo(impostazioni_.LeggiIni(kSezioneForm, "Top", 0));
    posto.left = aSingolo(impostazioni_.LeggiIni(kSezioneForm, "Left", 0));
    posto.width = aSingolo(impostazioni_.LeggiIni(kSezioneForm, "Width", 12000));
    posto.height = aSingolo(impostazioni_.LeggiIni(kSezioneForm, "Height", 9000));
    Posizionata = true;
    finestra_->posto(posto);
}

void Scheda::Scarica() {
    if (!finestra_)
        return;
    const Rettangolo posto = finestra_->posto();
    const auto scrivi = [this](const char* chiave, Twip valore) {
        impostazioni_.ScriviIni(kSezioneForm, chiave, static_cast<float>(valore.v));
    };
    scrivi("Top", posto.top);
    scrivi("Left", posto.left);
    scrivi("Width", posto.width);
    scrivi("Height", posto.height);
    lampeggi_.clear();
    pubblicita_.reset();
    finestra_.reset();
}

void Scheda::Blinka(std::int16_t indice) {
    if (indice >= 0 && indice < static_cast<int>(lampeggi_.size()))
        lampeggi_[static_cast<std::size_t>(indice)]->avvia();
}

void Scheda::Lampeggia(const std::string&, const std::string&) {}

void Scheda::faseLampeggio(int slot, bool usuale) {
    modulo()("lblNumero3", slot).Visible(usuale);
}

std::string Scheda::impostazione(std::string_view chiave, const ValoreIni& predefinito) const {
    return impostazioni_.LeggiIni(kSezioneImpostazioni, chiave, predefinito);
}

std::string Scheda::impostazione(std::string_view parola, int slot, const ValoreIni& predefinito) const {
    return impostazione(conCifra(parola, slot), predefinito);
}

void Scheda::titoliReparti() {
    for (int i = 0; i < riga_.slot; ++i) {
        Controllo& titolo = modulo()("lblTitolo", i);
        titolo.Caption(servizi_.console.Reparto(i));
        titolo.FontName(impostazione("FontTesto", i, "Arial Narrow"));
        titolo.FontSize(aSingolo(impostazione("FontSizeTesto", i, "48")));
    }
}

void Scheda::coloraNumeri(int slot, Colore testo) {
    for (int n = 1; n <= riga_.numeri; ++n)
        modulo()(etichettaNumero(n), slot).ForeColor(testo);
}

void Scheda::leggiNumeri(int slot) {
    for (int n = 1; n <= riga_.numeri; ++n)
        modulo()(etichettaNumero(n), slot)
            .Caption(videata_.LeggiIni(std::to_string(slot), conCifra("Numero", n)));
}

Colore Scheda::colore(std::string_view parola, int slot, std::int32_t predefinito) const {
    return Colore(aIntero32(impostazione(parola, slot, predefinito)));
}

CarattereNumeri Scheda::carattereNumeri(const ValoreIni& nome, const ValoreIni& punti) const {
    return {.punti = aSingolo(impostazione("FontSizeNumeri", punti)),
            .nome = impostazione("FontNumeri", nome)};
}

void Scheda::carattereNumeriGrandi(int slot, const CarattereNumeri& carattere) {
    for (int n = 1; n <= riga_.grandi; ++n)
        carattere.metti(modulo()(etichettaNumero(n), slot));
}

void CarattereNumeri::metti(Controllo& numero) const {
    numero.FontSize(punti);
    numero.FontName(nome);
}

} // namespace lumigrafo
