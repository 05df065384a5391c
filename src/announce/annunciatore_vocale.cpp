#include "announce/annunciatore_vocale.h"

#include <optional>
#include <utility>
#include <vector>

namespace lumigrafo {

namespace {

constexpr const char* kVoceGradita = "Silvia";
constexpr const char* kVoceAssente =
    "Sintesi vocale non disponibile: i numeri chiamati non verranno pronunciati.";

std::optional<std::size_t> voceGradita(const std::vector<std::string>& descrizioni) {
    for (std::size_t i = 0; i < descrizioni.size(); ++i)
        if (descrizioni[i].find(kVoceGradita) != std::string::npos)
            return i;
    return std::nullopt;
}

} // namespace

AnnunciatoreVocale::AnnunciatoreVocale(Voce& voce, RegistroLog& log, Pompa& pompa, DatiVoce& dati,
                                       Notifica notifica)
    : voce_(voce), log_(log), pompa_(pompa), dati_(dati), notifica_(std::move(notifica)) {}

void AnnunciatoreVocale::ScegliVoce() {
    voce_.accendi(
        {[this] { Voce_StartStream(); }, [this] { Voce_EndStream(); }, [this] { notifica_(kVoceAssente); }},
        voceGradita);
    scelta_ = true;
}

void AnnunciatoreVocale::Parla(const std::string& testo) {
    // Whoever speaks at once was asked to: also where the voice of the calls is switched off.
    if (!scelta_)
        ScegliVoce();
    voce_.Speak(testo, dati_.VelocitaVocale(), dati_.VolumeVocale());
}

void AnnunciatoreVocale::AccodaAnnuncio(const std::string& testo) {
    if (!lstCoda_.empty() || !dati_.VoceAttiva()) {
        lstCoda_.push_back(testo);
        return;
    }
    Parla(testo);
    log_.ScriviLogVoce(testo);
}

void AnnunciatoreVocale::Voce_StartStream() {
    dati_.VoceAttiva() = false;
}

void AnnunciatoreVocale::Voce_EndStream() {
    const unsigned turno = ++turno_;
    dati_.VoceAttiva() = true;
    // An empty text stops the queue for good: it stays at the head.
    if (lstCoda_.empty() || lstCoda_.front().empty())
        return;
    dati_.VoceAttiva() = false;
    pompa_.cedi("Voice_EndStream/2");
    if (turno != turno_)
        return; // a text was spoken at once meanwhile and has ended: the queue went on from there
    const std::string testo = lstCoda_.front();
    Parla(testo);
    log_.ScriviLogVoce(testo);
    lstCoda_.pop_front();
}

} // namespace lumigrafo
