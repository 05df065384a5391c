#include "fiscale/utilita.h"

#include "fiscale/crea_driver.h"
#include "fiscale/layout.h"

#include <array>

namespace lumigrafo {

namespace {

constexpr Colore kVerde = rgb(46, 160, 87);
constexpr Colore kRosso = rgb(206, 62, 55);
constexpr Colore kScelta = rgb(211, 222, 232);

struct Aspetti {
    const char* parola;
    Colore colore;
};
/// By outcome.
constexpr std::array<Aspetti, 3> kEsiti{{{"stampato", rgb(226, 243, 232)},
                                         {"non stampato", rgb(250, 226, 224)},
                                         {"da verificare", rgb(252, 240, 214)}}};
constexpr std::array<Twip, 4> kLarghezze{4500, 3000, 2700, 3300};
constexpr Twip kAltezzaRiga = 750;

const Aspetti& aspetti(const VoceRegistro& v) {
    return kEsiti[static_cast<std::size_t>(v.fine)];
}

/// "15/03/2026 20:30" of "2026-03-15 20:30:00".
std::string giornoEOra(const std::string& quando) {
    if (quando.size() < 16)
        return quando;
    return quando.substr(8, 2) + "/" + quando.substr(5, 2) + "/" + quando.substr(0, 4) + "  " +
           quando.substr(11, 5);
}

} // namespace

UtilitaFiscale::UtilitaFiscale(const PorteComponente& porte, const std::filesystem::path& cartellaProgramma,
                               const PostoArchivio& archivio, Stampatore& stampatore)
    : p_(porte), cartella_(cartellaProgramma), archivio_(archivio), stampatore_(stampatore),
      controlli_(kLayoutUtilitaFiscale), elenco_(static_cast<int>(kLarghezze.size())) {
    for (std::size_t k = 0; k < kLarghezze.size(); ++k)
        elenco_.larghezzaColonna(static_cast<int>(k), kLarghezze[k]);
    elenco_.altezzaMinima(kAltezzaRiga);
    elenco_.coloreSelezione(kScelta);
    controlli_("lblStato").Caption("Interrogo la stampante ...");
    mostraElenco();
}

void UtilitaFiscale::clic(std::string_view nome) {
    if (nome == "cmdChiudi")
        fine_();
    else if (nome == "cmdAggiorna")
        aggiorna();
    else if (nome == "cmdRistampa")
        ristampa();
}

void UtilitaFiscale::clicElenco(int riga) {
    scegli(riga >= 0 && riga < static_cast<int>(voci_.size()) ? riga : -1);
}

void UtilitaFiscale::aggiorna() {
    mostraStato();
    mostraElenco();
}

void UtilitaFiscale::mostraStato() {
    const ImpostazioniFiscali i = leggiImpostazioniFiscali(cartella_);
    const std::string manca = difetto(i);
    const StatoStampante stato =
        manca.empty() ? creaDriver(i, p_, cartella_, archivio_)->stato() : StatoStampante{false, manca};
    controlli_("fraSpia").BackColor(stato.pronta ? kVerde : kRosso);
    controlli_("lblStato").Caption(stato.testo);
}

void UtilitaFiscale::mostraElenco() {
    voci_ = RegistroScontrini(cartella_, p_.orologio).voci();
    elenco_.Rows(0);
    elenco_.Rows(static_cast<int>(voci_.size()));
    for (std::size_t n = 0; n < voci_.size(); ++n) {
        const VoceRegistro& v = voci_[n];
        const int riga = static_cast<int>(n);
        elenco_.testo(riga, 0, giornoEOra(v.quando));
        elenco_.testo(riga, 1, v.ordine());
        elenco_.testo(riga, 2, v.importo ? "€ " + testoImporto(*v.importo) : "");
        elenco_.testo(riga, 3, aspetti(v).parola);
        elenco_.sfondo(riga, 3, aspetti(v).colore);
    }
    controlli_("lblVuoto").Visible(voci_.empty());
    scegli(voci_.empty() ? -1 : 0);
}

void UtilitaFiscale::scegli(int riga) {
    for (const int r : {scelta_, riga})
        for (int k = 0; r >= 0 && r < elenco_.Rows() && k + 1 < elenco_.Cols(); ++k)
            elenco_.sfondo(r, k, r == riga ? std::optional(kScelta) : std::nullopt);
    scelta_ = riga;
    controlli_("cmdRistampa").Enabled(riga >= 0);
    std::string testo;
    if (riga >= 0) {
        const VoceRegistro& v = voci_[static_cast<std::size_t>(riga)];
        testo = "Ordine " + v.ordine() + ", scontrino n. " + std::to_string(v.id) + ": " + aspetti(v).parola +
                ". " + v.testo;
    }
    controlli_("lblDettaglio").Caption(testo);
}

void UtilitaFiscale::ristampa() {
    if (scelta_ < 0)
        return;
    const VoceRegistro v = voci_[static_cast<std::size_t>(scelta_)];
    if (p_.avvisi.chiedi(
            {"Ristampare lo scontrino n. " + std::to_string(v.id) + " dell'ordine " + v.ordine() + " ?",
             "Ristampa", Icona::Domanda, Bottoni::SiNo}) != Risposta::Si)
        return;
    stampatore_.ristampa(v);
    mostraElenco();
}

} // namespace lumigrafo
