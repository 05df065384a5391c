#include "console/scansione.h"

#include "console/codice_scontrino.h"
#include "console/testi.h"
#include "console/ultimi_chiamati.h"
#include "platform/guasto.h"

#include <chrono>

namespace lumigrafo {

namespace {

using namespace std::chrono_literals;

constexpr Colore kVerdeEsito = Colore(0x80FF80);
constexpr Colore kRossoEsito = Colore(4079359);
constexpr std::size_t kTestoLungo = 30; ///< characters; longer ones take the smaller type

} // namespace

Scansione::Scansione(ContestoConsole& contesto, Chiamata& chiamata)
    : c_(contesto), chiamata_(chiamata), TimerBarCode_(c_.porte.timers.crea(500ms, [this] { silenzio(); })) {}

bool Scansione::tasto(char32_t carattere) {
    Controllo& casella = c_.controlli("txtBarCode");
    if (!casella.Visible() || !casella.Enabled())
        return false;
    const bool delCodice =
        (carattere >= U'0' && carattere <= U'9') || (carattere >= U'A' && carattere <= U'Z');
    if (delCodice) {
        TimerBarCode_->abilita(false);
        casella.Caption(casella.Caption() + static_cast<char>(carattere));
        TimerBarCode_->abilita(true); // 500 ms of silence end a code
        ++tasti_;
        return true;
    }
    if (!trim(casella.Caption()).empty()) {
        TimerBarCode_->abilita(false);
        scatto();
    }
    return false;
}

void Scansione::silenzio() {
    if (c_.stato.BarCodeInCorso || c_.controlli("txtBarCode").Caption().empty())
        return;
    // After a rebuild or a wait for the archive the tick can come ahead of keys that were typed long before
    // it: the program was busy, the scanner wasn't silent.
    const auto prima = tasti_;
    c_.cedi("TimerBarCode/tasti");
    if (tasti_ == prima)
        scatto();
}

void Scansione::scatto() {
    if (c_.stato.BarCodeInCorso || c_.controlli("txtBarCode").Caption().empty())
        return;
    TimerBarCode_->abilita(false);
    c_.stato.BarCodeInCorso = true;
    EsaminaBarCode();
    c_.cedi("TimerBarCode"); // keys stay in the queue: they are the next code's
    c_.stato.BarCodeInCorso = false;
    c_.controlli("txtBarCode").Caption("");
}

void Scansione::EsaminaBarCode() {
    const auto letto = leggiCodice(c_.controlli("txtBarCode").Caption());
    if (const auto* errore = std::get_if<std::string>(&letto)) {
        MostraEsitoBarCode(false, *errore);
        return;
    }
    const auto& codice = std::get<CodiceScontrino>(letto);
    const std::int16_t quadrante = quadranteDi(codice.categoria);
    if (c_.stato.Categoria[static_cast<std::size_t>(quadrante)] == 0) {
        // The word "1" stands there whichever the quadrant.
        MostraEsitoBarCode(false, "Categoria 1 non corretta, controllare le impostazioni: " +
                                      trim(c_.controlli("txtBarCode").Caption()).substr(5, 2));
        return;
    }
    if (codice.numero.empty())
        MostraEsitoBarCode(false, "Barcode errato !!!"); // and on with an empty number
    chiama(quadrante, codice.sigla, codice.numero);
}

std::int16_t Scansione::quadranteDi(std::int16_t categoria) const {
    const auto& C = c_.stato.Categoria;
    if (categoria == 0 || categoria == C[0] || categoria == C[3])
        return 0;
    if (categoria == C[1])
        return 1;
    if (categoria == C[2])
        return 2;
    return 0; // an unknown category isn't refused
}

bool Scansione::trovaCella(std::int16_t quadrante, const std::string& testo) {
    Griglia& grid = c_.stato.grid.at(static_cast<std::size_t>(quadrante));
    const auto posto = grid.cerca(testo);
    if (posto)
        grid.corrente(posto->riga, posto->colonna);
    return posto.has_value();
}

void Scansione::chiama(std::int16_t quadrante, const std::string& sigla, const std::string& numero) {
    std::string testo;
    if (!ignorandoGuasti([&] { testo = FormattaNumero(sigla, numero); })) {
        MostraEsitoBarCode(false, "BarCode errato!"); // a number beyond any order's
        return;
    }
    // The mode isn't asked for: a scan always calls. A number that isn't in the grid goes on the board all
    // the same, without strike-off, list entry and receipt.
    const bool trovato = trovaCella(quadrante, testo);
    if (trovato)
        AggiornaUltimiChiamati(c_.stato, c_.ultimi, quadrante, testo);
    chiamata_.MostraNumero(quadrante, sigla, numero);
    c_.frmVideata().Blinka(quadrante);
    if (trovato)
        chiamata_.AggiornaGridDB(sigla, numero, quadrante, -1, -1);
    MostraEsitoBarCode(true, c_.stato.Reparto[static_cast<std::size_t>(quadrante)] + "\r\n" + testo);
    chiamata_.annuncia(quadrante, sigla, numero);
    if (trovato)
        chiamata_.emettiScontrino(sigla, numero);
    c_.fuocoSuTxtBarCode();
}

void Scansione::MostraEsitoBarCode(bool ok, const std::string& testo, std::int32_t colore) {
    Controllo& pannello = c_.controlli("fraMessaggio");
    Controllo& messaggio = c_.controlli("lblMessaggioBarCode");
    Controllo& picOk = c_.controlli("picOk");
    Controllo& picErrore = c_.controlli("picErrore");
    messaggio.Left(0);
    messaggio.Width(pannello.Width());
    if (colore >= 1) {
        pannello.BackColor(Colore(colore));
        picErrore.Visible(false);
    } else {
        picOk.Visible(ok);
        picErrore.Visible(!ok);
        pannello.BackColor(ok ? kVerdeEsito : kRossoEsito);
        messaggio.FontSize(80);
        if (!ok) {
            messaggio.Left(picErrore.Left() + picErrore.Width() + 100);
            messaggio.Width(pannello.Width() - messaggio.Left());
        }
    }
    if (caratteri(testo) > kTestoLungo)
        messaggio.FontSize(50);
    messaggio.Caption(testo);
    pannello.Visible(true);
    pannello.ZOrder();
    // A number that is on show already leaves the board above the console of a station with one monitor.
    c_.finestra.InPrimoPiano();
    c_.finestra.Ridisegna();
    c_.porte.orologio.attendi(ok ? 700ms : 2000ms); // keys typed meanwhile are taken only after it
    pannello.Visible(false);
    c_.finestra.Ridisegna();
}

} // namespace lumigrafo
