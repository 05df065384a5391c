#include "fiscale/configurazione.h"

#include "fiscale/crea_driver.h"
#include "fiscale/layout.h"
#include "platform/conversioni.h"

#include <algorithm>
#include <array>

namespace lumigrafo {

namespace {

constexpr const char* kTitolo = "Impostazioni fiscali";
constexpr Colore kSpento = rgb(226, 233, 240);
constexpr Colore kAcceso = rgb(47, 109, 168);
constexpr Colore kInchiostro = rgb(31, 41, 51);
constexpr Colore kCarta = rgb(255, 255, 255);

struct Spiegazione {
    const char* etichetta;
    const char* aiuto;
};
/// By driver.
constexpr std::array<Spiegazione, kTipiDriver> kSpiegazioni{{
    {"Cartella",
     "Ogni scontrino diventa un file di testo. Senza una cartella: Scontrini, nella cartella del programma."},
    {"Indirizzo", "Indirizzo o nome della stampante, per esempio 192.168.1.50 oppure 192.168.1.50:9100."},
    {"Dispositivo", "File del dispositivo, per esempio /dev/usb/lp0."},
    {"Coda", "Nome della coda di stampa, che deve accettare dati grezzi."},
    {"Programma", "Percorso del programma che riceve lo scontrino e lo stampa."},
}};

bool conStato(TipoDriver driver) {
    return driver == TipoDriver::Rete || driver == TipoDriver::Dispositivo;
}

} // namespace

ConfigurazioneFiscale::ConfigurazioneFiscale(const PorteComponente& porte,
                                             const std::filesystem::path& cartellaProgramma,
                                             const PostoArchivio& archivio, bool modificabili)
    : p_(porte), cartella_(cartellaProgramma), archivio_(archivio), controlli_(kLayoutConfigurazioneFiscale),
      i_(leggiImpostazioniFiscali(cartellaProgramma)) {
    controlli_("cmdSalva").Enabled(modificabili);
    mostra();
}

void ConfigurazioneFiscale::mostra() {
    for (std::size_t n = 0; n < i_.intestazione.size(); ++n)
        controlli_("txtIntestazione", static_cast<int>(n)).Caption(i_.intestazione[n]);
    for (std::size_t n = 0; n < i_.piede.size(); ++n)
        controlli_("txtPiede", static_cast<int>(n)).Caption(i_.piede[n]);
    controlli_("lblCaratteri").Caption(std::to_string(i_.caratteri));
    mostraDriver();
}

void ConfigurazioneFiscale::mostraDriver() {
    for (std::size_t n = 0; n < kTipiDriver; ++n) {
        const bool scelto = n == static_cast<std::size_t>(i_.driver);
        Controllo& bottone = controlli_("cmdDriver", static_cast<int>(n));
        bottone.BackColor(scelto ? kAcceso : kSpento);
        bottone.ForeColor(scelto ? kCarta : kInchiostro);
    }
    const Spiegazione& s = kSpiegazioni[static_cast<std::size_t>(i_.driver)];
    controlli_("lblIndirizzo").Caption(s.etichetta);
    controlli_("lblAiuto").Caption(s.aiuto);
    controlli_("txtIndirizzo").Caption(i_.indirizzo());
    Controllo& stato = controlli_("cmdStato");
    stato.Visible(conStato(i_.driver));
    stato.Caption(i_.controllaStato ? "Controllo dello stato: sì" : "Controllo dello stato: no");
}

void ConfigurazioneFiscale::raccogli() {
    i_.indirizzo() = trim(controlli_("txtIndirizzo").Caption());
    for (std::size_t n = 0; n < i_.intestazione.size(); ++n)
        i_.intestazione[n] = trim(controlli_("txtIntestazione", static_cast<int>(n)).Caption());
    for (std::size_t n = 0; n < i_.piede.size(); ++n)
        i_.piede[n] = trim(controlli_("txtPiede", static_cast<int>(n)).Caption());
}

void ConfigurazioneFiscale::clic(std::string_view nome, int indice) {
    raccogli();
    if (nome == "cmdDriver") {
        scegliDriver(static_cast<TipoDriver>(indice));
    } else if (nome == "cmdMeno" || nome == "cmdPiu") {
        i_.caratteri =
            std::clamp(i_.caratteri + (nome == "cmdPiu" ? 1 : -1), kMinimoCaratteri, kMassimoCaratteri);
        controlli_("lblCaratteri").Caption(std::to_string(i_.caratteri));
    } else if (nome == "cmdStato") {
        i_.controllaStato = !i_.controllaStato;
        mostraDriver();
    } else if (nome == "cmdProva") {
        prova();
    } else if (nome == "cmdSalva") {
        salva();
    } else if (nome == "cmdAnnulla") {
        fine_();
    }
}

void ConfigurazioneFiscale::scegliDriver(TipoDriver driver) {
    i_.driver = driver; // each driver keeps its own address
    mostraDriver();
}

void ConfigurazioneFiscale::salva() {
    if (const std::string manca = difetto(i_); !manca.empty())
        return avvisa(manca, Icona::Esclamazione);
    if (!scriviImpostazioniFiscali(cartella_, i_))
        return avvisa("Le impostazioni non possono essere salvate nella cartella del programma.",
                      Icona::Critica);
    fine_();
}

void ConfigurazioneFiscale::prova() {
    if (const std::string manca = difetto(i_); !manca.empty())
        return avvisa(manca, Icona::Esclamazione);
    const Scontrino nessuno;
    const Modulo modulo = moduloDiProva(i_, p_.orologio.adesso());
    const EsitoStampa esito =
        creaDriver(i_, p_, cartella_, archivio_)->stampa({nessuno, modulo, true, false});
    if (esito.fine == Fine::Fatto)
        avvisa("Prova di stampa riuscita.", Icona::Informazione);
    else
        avvisa("Prova di stampa non riuscita.\r\n\r\n" + esito.testo, Icona::Critica);
}

void ConfigurazioneFiscale::avvisa(const std::string& testo, Icona icona) {
    p_.avvisi.chiedi({testo, kTitolo, icona, Bottoni::Ok});
}

} // namespace lumigrafo
