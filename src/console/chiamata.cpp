#include "console/chiamata.h"

#include "console/colonne.h"
#include "console/servito.h"
#include "console/testi.h"
#include "console/ultimi_chiamati.h"
#include "platform/guasto.h"

#include <array>

namespace lumigrafo {

namespace {

/// The slots by age: slot 3 holds the newest number. Odd as it looks, board, state file and Android link all
/// address the slots so.
constexpr std::array kEta = {"lblNumero3", "lblNumero2", "lblNumero1", "lblNumero4", "lblNumero5",
                             "lblNumero6", "lblNumero7", "lblNumero8", "lblNumero9"};

/// Nine numbers need the setting and a board that has them: the standard one has six whatever the setting
/// says.
std::size_t quantiPosti(const ContestoConsole& c, std::int16_t index) {
    return c.stato.Lumigrafo9Numeri && c.frmVideata().controlli().cerca("lblNumero7", index) ? 9 : 6;
}

/// What is written in it is undone unless it was confirmed.
class Transazione {
public:
    explicit Transazione(Workspace& ws) : ws_(ws) { ws_.BeginTrans(); }
    ~Transazione() {
        if (!confermata_)
            ignorandoGuasti([this] { ws_.Rollback(); });
    }
    Transazione(const Transazione&) = delete;
    Transazione& operator=(const Transazione&) = delete;
    void conferma() {
        ws_.CommitTrans();
        confermata_ = true;
    }

private:
    Workspace& ws_;
    bool confermata_ = false;
};

} // namespace

std::string testoAnnuncio(const ContestoConsole& c, int quadrante, const std::string& testo) {
    const std::string& prima =
        c.stato.SoloUnReparto ? c.stato.DicituraVocale : c.controlli("lblReparto", quadrante).Caption();
    return prima + " " + testo;
}

Chiamata::Chiamata(ContestoConsole& contesto, Caricatore& caricatore)
    : c_(contesto), caricatore_(caricatore) {}

void Chiamata::clicGriglia(std::int16_t q) {
    using namespace std::chrono_literals;
    if (c_.stato.TipoLumigrafo == 4) {
        c_.porte.messaggi.MostraMessaggio("Clic non possibile con sistema Avanti il Prossimo", 2);
        return;
    }
    Griglia& grid = c_.stato.grid.at(static_cast<std::size_t>(q));
    const int riga = grid.Row();
    const int colonna = grid.Col();
    if (grid.Rows() == 0 || riga < 0 || colonna < 0 || grid.testo(riga, colonna).empty()) {
        c_.fuocoSuTxtBarCode();
        return;
    }
    if (clicInCorso_)
        return;
    clicInCorso_ = true;
    const std::string cella = grid.testo(riga, colonna);

    grid.coloreSelezione(kGiallo);
    c_.finestra.Ridisegna();
    c_.cedi("grid_click/5");
    c_.porte.orologio.attendi(20ms);
    grid.coloreSelezione(kBianco);

    const auto [sigla, numero] = dividiCella(cella);
    if (!c_.stato.ModalitaDepennamento)
        chiama(q, cella, sigla, numero);
    AggiornaGridDB(sigla, numero, q, static_cast<std::int16_t>(riga), static_cast<std::int16_t>(colonna));
    c_.fuocoSuTxtBarCode();
    clicInCorso_ = false;
}

void Chiamata::chiama(std::int16_t q, const std::string& cella, const std::string& sigla,
                      const std::string& numero) {
    AggiornaUltimiChiamati(c_.stato, c_.ultimi, q, cella);
    MostraNumero(q, sigla, numero);
    c_.frmVideata().Blinka(q); // also for a number that was on the board already
    annuncia(q, sigla, numero);
    emettiScontrino(sigla, numero);
}

void Chiamata::emettiScontrino(const std::string& sigla, const std::string& numero) {
    if (!c_.stato.ScontrinoFiscale)
        return;
    // The component asks and waits as long as the operator likes; the console waits with it.
    c_.stato.ScontrinoInCorso = true;
    c_.porte.fiscale.EmettiFiscale(sigla, numero);
    c_.stato.ScontrinoInCorso = false;
}

void Chiamata::annuncia(std::int16_t q, const std::string& sigla, const std::string& numero) {
    if (c_.stato.Vocale) // an empty letter leaves two blanks before the number
        c_.porte.annunciatore.AccodaAnnuncio(testoAnnuncio(c_, q, sigla + " " + numero));
}

void Chiamata::MostraNumero(std::int16_t index, const std::string& sigla, const std::string& numero) {
    const std::string testo = testoVideata(sigla, numero);
    c_.controlli("lblNumero", index).Caption(testo);
    c_.frmVideata().Mostra();
    // A board of one department has no slots for the others, and the next-customer board none at all: a
    // number of theirs is announced and struck off without it.
    const bool senzaPosto = !c_.frmVideata().controlli().cerca(kEta.front(), index);
    if (senzaPosto || giaInMostra(index, testo))
        return; // a number can't be on the board twice in one quadrant
    scorri(index, testo);
    c_.porte.android.SincronizzaLumAndroid(index);
    salvaVideata(index);
    c_.finestra.Mostra();
}

bool Chiamata::giaInMostra(std::int16_t index, const std::string& testo) const {
    Controlli& videata = c_.frmVideata().controlli();
    for (std::size_t i = 0; i < quantiPosti(c_, index); ++i)
        if (videata(kEta[i], index).Caption() == testo)
            return true;
    return false;
}

void Chiamata::scorri(std::int16_t index, const std::string& testo) {
    Controlli& videata = c_.frmVideata().controlli();
    for (std::size_t i = quantiPosti(c_, index) - 1; i > 0; --i)
        videata(kEta[i], index).Caption(videata(kEta[i - 1], index).Caption());
    videata(kEta[0], index).Caption(testo);
}

void Chiamata::salvaVideata(std::int16_t index) {
    Controlli& videata = c_.frmVideata().controlli();
    const std::string sezione = std::to_string(index);
    for (std::size_t n = 1; n <= quantiPosti(c_, index); ++n) {
        const std::string cifra = std::to_string(n);
        c_.videata.ScriviIni(sezione, "Numero" + cifra, videata("lblNumero" + cifra, index).Caption());
    }
}

void Chiamata::AggiornaGridDB(const std::string& sigla, const std::string& numero, std::int16_t index,
                              std::int16_t riga, std::int16_t colonna) {
    const Griglia& grid = c_.stato.grid.at(static_cast<std::size_t>(index));
    const int r = riga == -1 ? grid.Row() : riga;
    const int k = colonna == -1 ? grid.Col() : colonna;
    bool trovato = false;
    c_.stato.Ws->cedendo([&] { trovato = depenna(sigla, numero, index); });
    if (trovato)
        svuotaCella(index, r, k);
    caricatore_.ChiudiRsLumigrafo();
    if (trovato)
        togliRigaVuota(index, r);
    c_.cedi("AggiornaGridDB/8");
}

bool Chiamata::depenna(const std::string& sigla, const std::string& numero, std::int16_t index) {
    clsRecordset& rs = caricatore_.ApriRsLumigrafo();
    if (!rs.Start("AggiornaGridDB", "Sigla", "=", "'" + sigla + "'", "Numero", "=", numero))
        return false;
    try {
        // One transaction: an order that a cash desk opens again meanwhile isn't deleted with its old state,
        // and a power cut can't leave an order off the queue whose receipt is never marked served.
        Transazione transazione(*c_.stato.Ws);
        chiudiCategorie(rs.ilRecordset(), index);
        if (!categorieAperte(rs.ilRecordset()))
            rs.ilRecordset().Delete();
        AggiornaDBLumigrafoCucina(c_.stato, c_.porte.orologio, sigla, numero, index, kVero);
        transazione.conferma();
        return true;
    } catch (const Guasto& guasto) {
        if (guasto.numero() != dao::kRecordEliminato)
            throw;
        return false; // another station deleted the row since the search: as if it had not been found
    }
}

void Chiamata::chiudiCategorie(Recordset& rs, std::int16_t index) {
    const auto chiudi = [&rs](int codice) { rs.Fields()[colonnaCategoria(codice)].Value(false); };
    const auto azzera = [&rs](int codice) { rs.Fields()[colonnaPezzi(codice)].Value(0); };
    const int categoria = c_.stato.Categoria.at(static_cast<std::size_t>(index));
    const int ulteriore = c_.stato.Categoria[3];
    rs.Edit();
    chiudi(categoria);
    if (index == 0 && ulteriore > 0) {
        chiudi(ulteriore);
        azzera(ulteriore);
    }
    azzera(categoria);
    rs.Update();
}

bool Chiamata::categorieAperte(Recordset& rs) {
    for (int c = 1; c <= kCategorie; ++c) {
        const Valore aperta = rs.Fields()[colonnaCategoria(c)].Value();
        if (!aperta.nullo() && aperta.aBooleano())
            return true;
    }
    return false;
}

void Chiamata::svuotaCella(std::int16_t index, int riga, int colonna) {
    Griglia& grid = c_.stato.grid.at(static_cast<std::size_t>(index));
    // A rebuild in the middle of the call can have moved the orders: the cell is emptied where it stood,
    // whatever stands there now, and comes back at the next rebuild. It can also be gone.
    if (riga < 0 || riga >= grid.Rows() || colonna < 0 || colonna >= grid.Cols())
        return;
    grid.testo(riga, colonna, "");
    grid.sfondo(riga, colonna, std::nullopt); // the highlight was the order's
}

void Chiamata::togliRigaVuota(std::int16_t index, int riga) {
    Griglia& grid = c_.stato.grid.at(static_cast<std::size_t>(index));
    if (riga < 0 || riga >= grid.Rows())
        return;
    std::string testi;
    for (int k = 0; k < grid.Cols(); ++k)
        testi += grid.testo(riga, k);
    if (!trim(testi).empty())
        return; // the emptied cell stays as a hole: cells never slide
    const bool corrente = riga == grid.Row();
    grid.RemoveItem(riga);
    if (corrente) // the order that comes up in its place wasn't touched, and keeps its highlight
        grid.corrente(-1, -1);
}

} // namespace lumigrafo
