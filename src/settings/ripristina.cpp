#include "settings/ripristina.h"

#include "data/errori_dao.h"
#include "data/istruzioni.h"
#include "platform/guasto.h"
#include "settings/ini/ini.h"
#include "settings/layout_ripristina.h"

#include <chrono>
#include <utility>

namespace lumigrafo {

using namespace std::chrono_literals;

namespace {

/// A little less than a third of the grid: rounded up, three rows would have to be scrolled.
constexpr Twip kAltezzaRiga = 1485;

/// Opens the row that was found for changes. False where another station has deleted it since: as if it had
/// not been found.
bool modificabile(Recordset& rs) {
    try {
        rs.Edit();
        return true;
    } catch (const Guasto& guasto) {
        if (guasto.numero() != dao::kRecordEliminato)
            throw;
        return false;
    }
}

} // namespace

Ripristina::Ripristina(const ServiziRipristina& servizi, std::function<void()> ridisegna,
                       std::function<void()> chiudi)
    : controlli_(kLayoutRipristina), s_(servizi), ridisegna_(std::move(ridisegna)),
      chiudi_(std::move(chiudi)) {
    const FileIni ultimi(servizi.ambiente.file(kFileUltimiChiamati));
    for (int i = 0; i < static_cast<int>(grid_.size()); ++i) {
        grid(i).altezzaMinima(kAltezzaRiga);
        grid(i).Rows(kRighe);
        for (int j = 0; j < kRighe; ++j)
            grid(i).testo(j, 0, ultimi.LeggiIni(kSezioneUltimi, chiaveUltimo(i, j)));
        controlli_("lblReparto", i).Caption(servizi.console.lblReparto(i));
    }
}

void Ripristina::clic(std::string_view nome) {
    if (nome == "cmdUscita")
        chiudi_();
}

void Ripristina::clicGriglia(std::int16_t i) {
    Griglia& griglia = grid(i);
    const int riga = griglia.Row();
    // A quadrant that is no longer in use has no category that its old numbers could go back to.
    if (BottoneInCorso_ || riga < 0 || griglia.testo(riga, 0).empty() || s_.console.Categoria(i) == 0)
        return;
    BottoneInCorso_ = true;
    mostraTocco(griglia, riga);
    const Ordine ordine = dividiCella(griglia.testo(riga, 0));
    riapri(ordine, s_.console.Categoria(i));
    BottoneInCorso_ = false;
    s_.console.CaricaVideataInizio(false);
    s_.console.AggiornaDBLumigrafoCucina(ordine.sigla, ordine.numero, i, 0);
    s_.pompa.cedi("frmRipristina/9");
    togliDallaVideata(ordine.numero);
    ignorandoGuasti([&] { s_.console.SincronizzaLumAndroid(i); });
    ignorandoGuasti([&] { chiudi_(); });
}

void Ripristina::mostraTocco(Griglia& griglia, int riga) {
    griglia.sfondo(riga, 0, kGiallo);
    ridisegna_();
    s_.pompa.cedi("frmRipristina/2");
    s_.orologio.attendi(160ms);
    s_.pompa.cedi("frmRipristina/attesa"); // touches made during the wait end here, at the flag
}

void Ripristina::riapri(const Ordine& ordine, std::int16_t categoria) {
    clsRecordset tabella(s_.console.contestoDati());
    tabella.Apri("frmRipristina_grid_click", false, istruzioni::kLumigrafo, false, false);
    const bool trovata =
        tabella.Start("grid_click", "Sigla", "=", "'" + ordine.sigla + "'", "Numero", "=", ordine.numero);
    Recordset& rs = tabella.ilRecordset();
    if (!trovata || !modificabile(rs)) {
        rs.AddNew();
        rs.Fields()["Sigla"].Value(ordine.sigla);
        rs.Fields()["Numero"].Value(ordine.numero);
    }
    rs.Fields()["Categoria" + std::to_string(categoria)].Value(true);
    rs.Update();
    tabella.Chiudi();
}

/// Only the newest slots, by the number without its letter: "A 12" stays on show when 12 of A is restored.
/// Failures count in the first quadrant alone; boards of one department have no other.
void Ripristina::togliDallaVideata(const std::string& numero) {
    const auto togli = [&](int k) {
        Controllo& slot = s_.console.frmVideata()("lblNumero3", k);
        if (slot.Caption() == numero)
            slot.Caption("");
    };
    togli(0);
    for (const int k : {1, 2})
        ignorandoGuasti([&] { togli(k); });
}

} // namespace lumigrafo
