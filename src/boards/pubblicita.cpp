#include "boards/pubblicita.h"

#include "boards/percorsi.h"

#include <algorithm>
#include <string>

namespace lumigrafo {

const RigaPubblicita* rigaPubblicita(TipoVideata tipo) {
    const auto* riga = std::find_if(kPubblicita.begin(), kPubblicita.end(),
                                    [tipo](const RigaPubblicita& r) { return r.tipo == tipo; });
    return riga == kPubblicita.end() ? nullptr : riga;
}

Pubblicita::Pubblicita(const RigaPubblicita& riga, Controlli& controlli, Timers& timers,
                       const std::filesystem::path& cartella)
    : riga_(riga), controlli_(controlli), picPubblicita_(controlli("picPubblicita")), elenco_(cartella),
      timerImmagini_(timers.crea(riga.intervallo, [this] { scatto(); })) {
    picPubblicita_.Adatta(Adattamento::Naturale);
    if (riga_.stiratura == Stiratura::Sempre)
        stira();
    timerImmagini_->abilita(riga_.accesa);
}

void Pubblicita::prepara(const FileIni& impostazioni) {
    if (riga_.strisciaAScelta)
        mostraStriscia(impostazioni);
    if (riga_.stiratura == Stiratura::SeRichiesta && !riga_.provaAllInizio)
        leggiResize(impostazioni);
}

void Pubblicita::concludi(const FileIni& impostazioni) {
    if (!riga_.provaAllInizio)
        return;
    if (elenco_.vuoto()) {
        mostra(false);
        return;
    }
    timerImmagini_->abilita(true);
    leggiResize(impostazioni);
}

void Pubblicita::mostra(bool inVista) {
    timerImmagini_->abilita(inVista);
    picPubblicita_.Visible(inVista);
}

void Pubblicita::mostraStriscia(const FileIni& impostazioni) {
    // 1 exactly: a stored -1, though it is a truth value, shows nothing.
    if (aDoppio(impostazioni.LeggiIni(kSezioneImpostazioni, "PubblicitaMirtolanda", 0)) != 1)
        return;
    const std::string testo = impostazioni.LeggiIni(kSezioneImpostazioni, "TestoPubblicitaMirtolanda");
    if (!testo.empty())
        controlli_("lblMirtolanda").Caption(testo);
    Controllo& striscia = controlli_("FraMirtolanda");
    picPubblicita_.Height(picPubblicita_.Height() - striscia.Height());
    striscia.Visible(true);
    striscia.ZOrder();
}

void Pubblicita::leggiResize(const FileIni& impostazioni) {
    const std::int16_t ResizeAttivo =
        aIntero16(impostazioni.LeggiIni(kSezioneImpostazioni, "ResizePubblicita", 0));
    if (ResizeAttivo == 1)
        stira();
}

void Pubblicita::stira() {
    picPubblicita_.Adatta(Adattamento::Stirata);
    picPubblicita_.MargineFigura(riga_.meno);
}

void Pubblicita::scatto() {
    const std::filesystem::path file = elenco_.prossimo();
    if (file.empty())
        return; // the picture on show stays
    picPubblicita_.Figura(testoUtf8(file));
    if (!riga_.strisciaDavanti)
        return;
    if (Controllo& striscia = controlli_("FraMirtolanda"); striscia.Visible())
        striscia.ZOrder();
}

} // namespace lumigrafo
