#include "console/avvio.h"

#include "announce/log.h"
#include "console/dialogo.h"
#include "links/collegamento_android.h"
#include "platform/conversioni.h"
#include "platform/guasto.h"

#include <filesystem>
#include <fstream>
#include <string_view>

namespace lumigrafo {

namespace {

using namespace std::chrono_literals;

/// Until this hour the business day is still yesterday's.
constexpr int kOraCambioGiorno = 5;
/// A stored truth value, as against the 1 of a ticked box.
constexpr double kPosizionaVero = kVero;

/// How the path of a network share begins.
constexpr std::string_view kCondivisione = "\\\\";

/// A share's path keeps its own separator: the operator reads it.
std::string archivioIn(const std::string& cartella) {
    if (cartella.starts_with(kCondivisione))
        return cartella + "\\" + kFileArchivio;
    return (std::filesystem::path(cartella) / kFileArchivio).string();
}

/// A failing look-up finds nothing.
bool fileTrovato(const std::string& percorso) {
    std::error_code errore;
    return std::filesystem::is_regular_file(percorso, errore);
}

} // namespace

Avvio::Avvio(ContestoConsole& contesto, Caricatore& caricatore, DispositoreConsole& dispositore,
             Comandi& comandi, Timer& Timer1)
    : c_(contesto), caricatore_(caricatore), dispositore_(dispositore), comandi_(comandi), Timer1_(Timer1) {}

bool Avvio::esiste(const char* nome) const {
    std::error_code errore;
    return std::filesystem::exists(c_.porte.ambiente.file(nome), errore);
}

void Avvio::carica() {
    const bool riavvio = c_.porte.ambiente.riavvio();
    istanzaUnica();
    Timer1_.abilita(false); // no rebuild can run during the load
    leggiPathDB();
    cercaArchivio();
    c_.controlli("lblDB").Caption(c_.stato.PathArchivio);
    const DataOra ora = c_.porte.orologio.adesso();
    c_.stato.DataCompetenza = ora.ora < kOraCambioGiorno ? ieri(ora.data) : ora.data;
    apriArchivio();
    dispositore_.ImpostaVideata();
    caricatore_.CaricaVideataInizio(false);
    c_.cedi("Form_Load/12");
    Timer1_.abilita(true);
    c_.stato.VoceAttiva = true;
    svuotaLogVoce();
    if (riavvio)
        comandi_.cmdLumigrafo();
    c_.cedi("Form_Load/16");
    if (!esiste(".sonoindebug") && !riavvio)
        c_.porte.messaggi.MostraSplash();
    togliVideataVecchia();
    c_.cedi("Form_Load/18");
    comandi_.cmdLumigrafo();
    c_.cedi("Form_Load/18 mostrato");
    if (c_.stato.SoloUnReparto)
        dispositore_.ImpostaUnReparto(); // showing the board can have disturbed the sizes
    leggiAndroid();
    c_.porte.android.SincronizzaLumAndroid(-1);
    c_.stato.ScontrinoFiscale =
        aBooleano(c_.impostazioni.LeggiIni(kSezioneImpostazioni, "ScontrinoFiscale", false));
    if (!c_.stato.ScontrinoFiscale)
        c_.finestra.mnuFiscaleVisibile(false);
    caricata_ = true;
}

void Avvio::istanzaUnica() {
    const bool precedente = c_.porte.sistema.istanzaPrecedente();
    if (!precedente || c_.porte.ambiente.riavvio())
        return;
    c_.porte.messaggi.MostraMessaggio("Lumigrafo risulta già avviato, in caso di problemi riavviare il pc.",
                                      4);
    c_.porte.uscita.termina(0);
}

void Avvio::leggiPathDB() {
    const std::string cartella = c_.porte.ambiente.cartella.string();
    c_.stato.PathDB = c_.impostazioni.LeggiIni(kSezioneImpostazioni, "DatabaseLumigrafo", cartella);
    c_.stato.InDebug = esiste("sonoindebug");
    if (c_.stato.PathDB.empty())
        c_.stato.PathDB = cartella;
    c_.stato.PathArchivio = archivioIn(c_.stato.PathDB);
}

void Avvio::cercaArchivio() {
    if (fileTrovato(c_.stato.PathArchivio))
        return;
    c_.porte.orologio.attendi(3000ms); // the server may just be coming up
    if (!fileTrovato(c_.stato.PathArchivio))
        archivioNonTrovato();
}

void Avvio::archivioNonTrovato() {
    Timer1_.abilita(false);
    std::string esito;
    ignorandoGuasti([&] { esito = esitoEco(); });
    c_.porte.avvisi.chiedi(
        {"Errore di collegamento al database " + c_.stato.PathArchivio + "\r\n\r\n" + esito, "",
         Icona::Esclamazione, Bottoni::Ok});
    ignorandoGuasti([this] { dialogo(c_, [this] { c_.porte.dialoghi.frmDatabase(); }); });
    c_.porte.uscita.termina(0);
}

std::string Avvio::esitoEco() const {
    const std::string& percorso = c_.stato.PathDB;
    if (!percorso.starts_with(kCondivisione))
        return {};
    const std::string server = percorso.substr(2, percorso.find('\\', 2) - 2);
    // A server named by a host name always fails: only a dotted address is tried.
    if (c_.porte.sistema.eco(server))
        return "PING SU " + server + " RIUSCITO CORRETTAMENTE";
    return "PING SU " + server +
           " NON RIUSCITO\r\n\r\nControllare che il server sia acceso, che i cavi di rete siano collegati e che i "
           "led del switch siano accesi.";
}

void Avvio::apriArchivio() {
    c_.stato.Ws = &DBEngine::Workspaces(0);
    try {
        c_.stato.Db = c_.stato.Ws->OpenDatabase(c_.stato.PathArchivio);
    } catch (const Guasto& guasto) {
        c_.porte.avvisi.chiedi(
            {"Errore " + std::to_string(guasto.numero()) + " apertura database: " + c_.stato.PathArchivio,
             "ERRORE", Icona::Critica, Bottoni::Ok});
        c_.porte.uscita.termina(1);
    }
}

void Avvio::svuotaLogVoce() const {
    if (!std::ofstream(c_.porte.ambiente.file(kFileLogVoce), std::ios::trunc))
        throw Guasto(guasti::kPermessoNegato);
}

void Avvio::togliVideataVecchia() {
    for (const Griglia& grid : c_.stato.grid)
        if (grid.Rows() != 0)
            return;
    // No open order: the numbers of an earlier service are stale, and the board must start blank.
    std::error_code ignorato;
    std::filesystem::remove(c_.videata.file(), ignorato);
}

void Avvio::leggiAndroid() {
    for (std::size_t i = 0; i < c_.stato.IpDroid.size(); ++i)
        c_.stato.IpDroid[i] = leggiLumigrafoAndroid(c_.impostazioni, i);
}

void Avvio::attiva() {
    if (!caricata_ || attivata_)
        return;
    attivata_ = true;
    // Equality with the stored true value, so the 1 of a ticked box doesn't pass.
    if (aDoppio(c_.impostazioni.LeggiIni(kSezioneImpostazioni, "Posiziona", 0)) == kPosizionaVero)
        comandi_.cmdPosizionaLumigrafo();
    c_.cedi("Form_Activate/1");
    c_.finestra.InPrimoPiano();
    c_.fuocoSuTxtBarCode();
}

void Avvio::scarica() {
    FermaPrimoPiano(c_.porte.processi);
    if (c_.stato.frmVideata)
        c_.frmVideata().Scarica();
    c_.porte.uscita.termina(0);
}

} // namespace lumigrafo
