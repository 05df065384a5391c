#include "settings/inserisci_numeri.h"

#include "data/istruzioni.h"
#include "forms/verifica.h"
#include "platform/conversioni.h"
#include "platform/guasto.h"
#include "settings/stile.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace lumigrafo {

using namespace std::chrono_literals;

namespace {

constexpr int kUltimo = 999;
/// Rows written as one: enough to be quick, few enough not to keep the other stations waiting.
constexpr int kInsieme = 50;
/// A longer work shows how far it is.
constexpr auto kAttesaMuta = 500ms;
constexpr Twip kBarra = 7950;

// clang-format off
constexpr std::array<Descrizione, 9> kControlli{{
    {.tipo = Tipo::Etichetta, .nome = "Label1", .rett = {225, 300, 4800, 900}, .carattere = stile::kIntestazione, .testo = stile::kTitolo, .caption = "Inserire numero di partenza"},
    {.tipo = Tipo::Casella, .nome = "txtNumero", .rett = {5175, 300, 3000, 900}, .carattere = {"Arial", 20, true}, .allineamento = Allineamento::Centro, .testo = stile::kTesto, .caption = "1", .nomeAccessibile = "Numero di partenza"},
    {.tipo = Tipo::Etichetta, .nome = "Label2", .rett = {225, 1350, 7950, 900}, .carattere = stile::kEtichetta, .testo = stile::kNota, .caption = "Con questa funzione verranno inseriti automaticamente i numeri fino a 999"},
    {.tipo = Tipo::Riquadro, .nome = "picAvanzamento", .rett = {225, 2325, kBarra, 300}, .sfondo = rgb(217, 224, 230), .visibile = false, .nomeAccessibile = "Avanzamento"},
    {.tipo = Tipo::Riquadro, .nome = "picFatto", .padre = "picAvanzamento", .rett = {0, 0, 0, 300}, .sfondo = stile::kConferma},
    {.tipo = Tipo::Etichetta, .nome = "lblAvanzamento", .rett = {225, 2625, 7950, 375}, .carattere = stile::kEtichetta, .allineamento = Allineamento::Centro, .testo = stile::kTesto, .visibile = false},
    stile::bottone("cmdAnnulla", {225, 3150, 3600, 975}, "Annulla"),
    stile::conferma("cmdOK", {4575, 3150, 3600, 975}, "Conferma"),
    {.tipo = Tipo::Numerica, .nome = "ctlTastiera21", .rett = {8550, 300, 4350, 3825}, .carattere = stile::kIntestazione, .nomeAccessibile = "Tastiera numerica"},
}};
// clang-format on
static_assert(layoutValido(kControlli));

const Layout kLayout{"frmInserisciNumeri", "Inserimento numeri", 13125, 4425, stile::kFondo, kControlli};

} // namespace

InserisciNumeri::InserisciNumeri(const ServiziInserimento& servizi, std::function<void()> chiudi)
    : s_(servizi), chiudi_(std::move(chiudi)), controlli_(kLayout) {}

void InserisciNumeri::clic(std::string_view nome, int) {
    if (nome == "cmdOK")
        cmdOK();
    else if (nome == "cmdAnnulla")
        chiudi_();
}

void InserisciNumeri::cmdOK() {
    Controllo& txtNumero = controlli_("txtNumero");
    const std::string testo = txtNumero.Caption();
    if (!isNumeric(testo)) {
        s_.avvisi.chiedi({"Compilare la casella solo con numeri", "", Icona::Esclamazione, Bottoni::Ok});
        txtNumero.SetFocus();
        return;
    }
    const Risposta risposta =
        s_.avvisi.chiedi({"Attenzione, verranno inseriti numeri da " + testo +
                              " a 999 su tutte le categorie del lumigrafo.\r\n\r\nPROCEDERE ?",
                          "ATTENZIONE", Icona::Domanda, Bottoni::SiNo});
    if (risposta != Risposta::Si)
        return;
    s_.Db.Execute(istruzioni::kTogliTutti);
    s_.pompa.cedi("frmInserisciNumeri/4");
    inserisci(aIntero16(testo));
    s_.messaggi.MostraMessaggio("Inserimento terminato", 2);
    chiudi_();
}

/// Some rows at a time are one transaction, or each would wait for the disk. Other stations see no state that
/// single statements wouldn't have shown, and what was written before a failure stays, as it would with them.
void InserisciNumeri::inserisci(int primo) {
    const auto inizio = s_.cronometro();
    for (int numero = primo; numero <= kUltimo;) {
        const int fine = std::min(numero + kInsieme - 1, kUltimo);
        s_.Ws.BeginTrans();
        try {
            for (; numero <= fine; ++numero)
                s_.Db.Execute(istruzioni::inserisciNumero(std::to_string(numero)));
        } catch (const Guasto&) {
            s_.Ws.CommitTrans();
            throw;
        }
        s_.Ws.CommitTrans();
        if (s_.cronometro() - inizio > kAttesaMuta)
            avanza(primo, numero - 1);
    }
}

void InserisciNumeri::avanza(int primo, int fatto) {
    controlli_("cmdOK").Enabled(false);
    controlli_("cmdAnnulla").Enabled(false);
    Controllo& lblAvanzamento = controlli_("lblAvanzamento");
    lblAvanzamento.Caption("Inserito il numero " + std::to_string(fatto) + " di " + std::to_string(kUltimo));
    lblAvanzamento.Visible(true);
    controlli_("picFatto").Width(kBarra * (static_cast<double>(fatto - primo + 1) / (kUltimo - primo + 1)));
    controlli_("picAvanzamento").Visible(true);
    if (ridisegna_)
        ridisegna_();
}

} // namespace lumigrafo
