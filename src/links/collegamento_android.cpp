#include "links/collegamento_android.h"

#include "platform/guasto.h"

#include <utility>

namespace lumigrafo {

namespace {

using namespace std::chrono_literals;

constexpr std::size_t kLumigrafi = 3;
constexpr std::size_t kPostiSenzaNove = 6;
constexpr auto kAttesaConnessione = 1000ms;
constexpr auto kAttesaInattiva = 1000ms;
/// The board gets this long between accepting and reading.
constexpr auto kPausaPrimaDellInvio = 200ms;
constexpr auto kAttesaChiusura = 20000ms;

} // namespace

LumigrafoAndroid leggiLumigrafoAndroid(const FileIni& impostazioni, std::size_t i) {
    const std::string cifra = std::to_string(i);
    return {impostazioni.LeggiIni(kSezioneAndroid, "IpLumDroid" + cifra),
            aIntero16(impostazioni.LeggiIni(kSezioneAndroid, "FontGruppiDroid" + cifra, 0))};
}

CollegamentoAndroid::CollegamentoAndroid(FileIni impostazioni, DatiAndroid& dati, Orologio& orologio,
                                         ClienteTcp& rete, Notifiche& notifiche)
    : impostazioni_(std::move(impostazioni)), dati_(dati), orologio_(orologio), rete_(rete),
      notifiche_(notifiche) {}

void CollegamentoAndroid::SincronizzaLumAndroid(std::int16_t Last) {
    if (dati_.IpDroid(0).Ip.empty())
        return; // the first board's address turns the whole link on, whatever the others say
    leggiNumeri();
    for (std::size_t i = 0; i < kLumigrafi; ++i) {
        dati_.IpDroid(i) = leggiLumigrafoAndroid(impostazioni_, i);
        if (!dati_.IpDroid(i).Ip.empty())
            InviaDatiLumigrafo(i, Last);
    }
}

void CollegamentoAndroid::leggiNumeri() {
    const std::size_t posti = dati_.Lumigrafo9Numeri() ? DatiLumigrafo::kPosti : kPostiSenzaNove;
    for (std::size_t g = 0; g < DatiLumigrafo::kGruppi; ++g)
        for (std::size_t n = 1; n <= posti; ++n)
            leggiNumero(g, n);
}

/// A label that the board hasn't leaves its place as it was.
void CollegamentoAndroid::leggiNumero(std::size_t gruppo, std::size_t posto) {
    ignorandoGuasti([&] {
        NumeriAndroid_[gruppo][posto - 1] =
            dati_.scritta("lblNumero" + std::to_string(posto), static_cast<int>(gruppo));
    });
}

void CollegamentoAndroid::InviaDatiLumigrafo(std::size_t i, std::int16_t Last) {
    const std::string testo = documentoLumigrafo(dati(i, Last));
    const std::string& ip = dati_.IpDroid(i).Ip;
    const auto presa = rete_.crea();
    if (!presa->connetti(ip, kPorta, kAttesaConnessione)) {
        notifiche_.NotificaPopup("Errore connessione a lumigrafo con IP = " + ip);
        return;
    }
    presa->sonde(false);
    presa->limiteInattivita(kAttesaInattiva);
    orologio_.attendi(kPausaPrimaDellInvio);
    presa->invia(testo);
    if (presa->ricevi().empty())
        notifiche_.NotificaPopup("Non ricevuto esito positivo da lumigrafo con IP = " + ip);
    presa->chiudi(kAttesaChiusura);
}

DatiLumigrafo CollegamentoAndroid::dati(std::size_t i, std::int16_t Last) const {
    DatiLumigrafo d;
    d.Last = Last;
    d.ServerDir = impostazioni_.LeggiIni(kSezioneAndroid, "PathPubblicita");
    d.FontNumeri = dati_.IpDroid(i).Font;
    d.TitoloLumigrafo = impostazione("TitoloLumigrafo", "Stiamo servendo i numeri");
    d.Numeri = NumeriAndroid_;
    for (std::size_t g = 0; g < DatiLumigrafo::kGruppi; ++g) {
        d.Categoria[g] = dati_.Reparto(static_cast<int>(g));
        // The colours of group 0 are sought one key further up than the boards seek them: long so.
        const std::string chiave = std::to_string(g + 1);
        d.colori[g] = {impostazione("ColoreSfondo" + chiave, "0"),
                       impostazione("ColoreTesto" + chiave, "16777215")};
    }
    return d;
}

std::string CollegamentoAndroid::impostazione(const std::string& chiave, const char* predefinito) const {
    return impostazioni_.LeggiIni(kSezioneImpostazioni, chiave, predefinito);
}

} // namespace lumigrafo
