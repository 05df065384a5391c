#include "console/caricatore.h"

#include "console/colonne.h"
#include "console/testi.h"
#include "data/istruzioni.h"
#include "platform/guasto.h"

#include <algorithm>
#include <array>
#include <chrono>

namespace lumigrafo {

namespace {

using namespace std::chrono_literals;

constexpr std::int16_t kFineDati = 10;
constexpr Colore kEvidenziato = rgb(255, 128, 128);

/// The columns of the queue, looked up once for all rows.
struct CampiCoda {
    explicit CampiCoda(Fields& campi)
        : sigla(campi["Sigla"]), numero(campi["Numero"]), evidenzia(campi["Evidenzia"]) {
        for (int c = 1; c <= kCategorie; ++c)
            categoria[static_cast<std::size_t>(c)] = &campi[colonnaCategoria(c)];
    }
    const Field& sigla;
    const Field& numero;
    const Field& evidenzia;
    std::array<const Field*, kCategorie + 1> categoria{};
};

bool vero(const Valore& v) {
    return !v.nullo() && v.aBooleano();
}

/// Places one rebuild's orders, cell by cell.
class Riempitore {
public:
    explicit Riempitore(StatoConsole& stato) : s_(stato) {}

    void metti(const CampiCoda& campi) {
        bool letto = false;
        for (std::size_t c = 1; c <= kCategorie; ++c) {
            if (!vero(campi.categoria[c]->Value()))
                continue;
            if (!letto) {
                sigla_ = campi.sigla.Value().aTestoOVuoto();
                numero_ = campi.numero.Value().aTestoOVuoto();
                evidenzia_ = vero(campi.evidenzia.Value());
                letto = true;
            }
            for (std::size_t q = 0; q < kQuadranti; ++q)
                if (appartiene(static_cast<std::int16_t>(c), q))
                    metti(q);
        }
    }

    [[nodiscard]] bool pieni() const {
        for (std::size_t q = 0; q < kQuadranti; ++q)
            if (s_.grid[q].Rows() <= s_.NumeroMassimoRighe)
                return false;
        return true;
    }

private:
    struct Posizione {
        int riga = 0, colonna = 0;
    };

    [[nodiscard]] bool appartiene(std::int16_t categoria, std::size_t q) const {
        return s_.Categoria[q] == categoria || (q == 0 && s_.Categoria[3] == categoria);
    }

    void metti(std::size_t q) {
        Griglia& grid = s_.grid[q];
        // An order with both categories of quadrant 0 shows once.
        const bool giaMesso = sigla_ == s_.UltimaSigla[q] && val(numero_) == s_.UltimoNumero[q];
        // Tested before a row is added, so a grid can end with one row more that holds a single cell.
        if (grid.Rows() > s_.NumeroMassimoRighe || giaMesso)
            return;
        auto& [riga, colonna] = posizione_[q];
        if (riga >= grid.Rows())
            grid.Rows(riga + 1);
        grid.testo(riga, colonna, FormattaNumero(sigla_, numero_));
        s_.UltimaSigla[q] = sigla_;
        s_.UltimoNumero[q] = aIntero16(val(numero_));
        if (evidenzia_)
            grid.sfondo(riga, colonna, kEvidenziato);
        if (++colonna == grid.Cols()) {
            colonna = 0;
            ++riga;
        }
    }

    StatoConsole& s_;
    std::array<Posizione, kQuadranti> posizione_;
    std::string sigla_;
    std::string numero_; ///< narrowed to 16 bits only where it is shown
    bool evidenzia_ = false;
};

} // namespace

Caricatore::Caricatore(ContestoConsole& contesto) : c_(contesto) {}

ContestoDati Caricatore::contestoDati() {
    return {*c_.stato.Db,    c_.stato.PathDB, c_.porte.orologio,
            c_.porte.avvisi, c_.porte.uscita, c_.porte.sistema};
}

void Caricatore::CaricaVideataInizio(bool) {
    if (inCorso_)
        return;
    mostraNumeroCasse();
    inCorso_ = true;
    c_.stato.Db->Execute(istruzioni::kTogliServiti);
    c_.porte.orologio.attendi(400ms);
    accettaTocchi();
    riempiGriglie();
    ContaPezzi();
    c_.cedi("CaricaVideataInizio/9");
    mostraPezzi();
    inCorso_ = false;
}

/// Who touched an order during the wait means the one that is still on show, and not what the rebuild puts in
/// its place.
void Caricatore::accettaTocchi() {
    const auto& griglie = c_.stato.grid;
    if (std::any_of(griglie.begin(), griglie.end(), [](const Griglia& grid) { return grid.Rows() != 0; }))
        c_.cedi("CaricaVideataInizio/attesa");
}

void Caricatore::mostraNumeroCasse() {
    clsRecordset rs(contestoDati());
    rs.Apri("CaricaVideataInizio", true, istruzioni::kNumero, false, true);
    if (rs.Errore() == 0)
        c_.controlli("lblNumCasse")
            .Caption("Le casse stanno servendo il numero " +
                     rs.ilRecordset().Fields()["Numero"].Value().aTestoOVuoto());
    rs.Chiudi();
}

clsRecordset& Caricatore::ApriRsLumigrafo() {
    rsLumigrafo_ = std::make_unique<clsRecordset>(contestoDati());
    rsLumigrafo_->Apri("frmGestione_form_load", false, istruzioni::kLumigrafo, false, false);
    return *rsLumigrafo_;
}

void Caricatore::ChiudiRsLumigrafo() {
    if (rsLumigrafo_)
        rsLumigrafo_->Chiudi();
    rsLumigrafo_.reset();
}

void Caricatore::riempiGriglie() {
    clsRecordset& rs = ApriRsLumigrafo();
    for (std::size_t q = 0; q < kQuadranti; ++q) {
        c_.stato.grid[q].Clear();
        c_.stato.grid[q].Rows(0);
        c_.stato.UltimoNumero[q] = 0;
        c_.stato.UltimaSigla[q].clear();
    }
    const CampiCoda campi(rs.ilRecordset().Fields());
    Riempitore riempitore(c_.stato);
    while (rs.Errore() != kFineDati) {
        riempitore.metti(campi);
        rs.LeggiNext("CaricaVideataInizio");
        if (riempitore.pieni())
            break;
    }
    ChiudiRsLumigrafo();
}

void Caricatore::mostraPezzi() {
    for (int q = 0; q < kQuadranti; ++q) {
        const int categoria = c_.stato.Categoria[static_cast<std::size_t>(q)];
        if (categoria < 0 || categoria > kCategorie)
            throw Guasto(guasti::kIndice);
        c_.controlli("lblPezzi", q)
            .Caption("Pezzi " + std::to_string(c_.stato.PezziCategoria[static_cast<std::size_t>(categoria)]));
    }
}

void Caricatore::CaricaCategorie() {
    clsRecordset rs(contestoDati());
    rs.Apri("CaricaCategorie", true, istruzioni::kCategorie, false, true);
    while (rs.Errore() != kFineDati) {
        Fields& campi = rs.ilRecordset().Fields();
        const Valore codice = campi["Codice"].Value();
        for (std::size_t q = 0; q < kQuadranti; ++q)
            if (!codice.nullo() && codice.aIntero32() == c_.stato.Categoria[q])
                c_.stato.Reparto[q] = campi["Descrizione"].Value().aTestoOVuoto();
        rs.LeggiNext("CaricaCategorie");
    }
    rs.Chiudi();
}

void Caricatore::ContaPezzi() {
    clsRecordset rs(contestoDati());
    rs.Apri("ContaPezzi", true, istruzioni::kSommaPezzi, false, true);
    if (rs.Errore() == 0)
        for (const std::size_t k :
             {0, 3, 1, 2}) // a category of 0 has no sum, and a null one leaves the last figure
            ignorandoGuasti([&] {
                const std::int16_t categoria = c_.stato.Categoria[k];
                c_.stato.PezziCategoria.at(static_cast<std::size_t>(categoria)) =
                    rs.ilRecordset().Fields()["SommaDiPezzi" + std::to_string(categoria)].Value().aIntero16();
            });
    rs.Chiudi();
}

} // namespace lumigrafo
