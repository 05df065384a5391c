#include "strumenti/archivio/cassa.h"

#include <algorithm>

namespace lumigrafo::archivio {

namespace {

constexpr int kCategorie = 10;

/// Open to add rows, without the rows that are there.
std::unique_ptr<Recordset> perAggiungere(Database& db, const std::string& tabella) {
    return db.OpenRecordset("Select * from " + tabella + " Where Numero < 0");
}

bool servita(const Voce& v) {
    return v.minutiServito >= 0;
}

void scriviServito(Recordset& rs, const Voce& voce) {
    rs.Fields()["SERVITO"].Value(servita(voce));
    if (servita(voce))
        rs.Fields()["MinutiServito"].Value(voce.minutiServito);
}

/// A new row of an order, with its letter and number.
void nuova(Recordset& rs, const Ordine& ordine) {
    rs.AddNew();
    rs.Fields()["Sigla"].Value(ordine.sigla);
    rs.Fields()["Numero"].Value(ordine.numero);
}

} // namespace

std::int32_t dataCompetenza(const DataOra& adesso) {
    const Data d = adesso.ora < 5 ? ieri(adesso.data) : adesso.data;
    return d.anno * 10000 + d.mese * 100 + d.giorno;
}

Cassa::Cassa(Database& db, std::int32_t dataCompetenza)
    : db_(db), data_(dataCompetenza), coda_(perAggiungere(db, "Lumigrafo")),
      dettagli_(perAggiungere(db, "DettaglioLumigrafo")), articoli_(perAggiungere(db, "Dettaglio")),
      scontrini_(perAggiungere(db, "ScontriniEmessi")),
      totali_(ignorandoGuasti([this] { (void)articoli_->Fields()["Totale"]; })) {}

void Cassa::registra(const Ordine& ordine) {
    scriviCoda(ordine);
    double totale = 0;
    for (const Voce& voce : ordine.voci) {
        scriviDettagli(ordine, voce);
        totale += scriviArticoli(ordine, voce);
    }
    scriviScontrino(ordine, totale);
    const std::string numero = std::to_string(ordine.numero);
    if (db_.Execute("UPDATE Numero SET Numero = " + numero) == 0)
        db_.Execute("INSERT INTO Numero (Numero) VALUES (" + numero + ")");
}

void Cassa::scriviCoda(const Ordine& ordine) {
    nuova(*coda_, ordine);
    for (int codice = 1; codice <= kCategorie; ++codice) // a null would make the sum of pieces null
        coda_->Fields()["Pezzi" + std::to_string(codice)].Value(0);
    for (const Voce& voce : ordine.voci) {
        const std::string codice = std::to_string(voce.categoria);
        coda_->Fields()["Categoria" + codice].Value(!servita(voce));
        coda_->Fields()["Pezzi" + codice].Value(servita(voce) ? 0 : voce.pezzi);
    }
    coda_->Fields()["Evidenzia"].Value(ordine.evidenzia);
    coda_->Update();
}

void Cassa::scriviDettagli(const Ordine& ordine, const Voce& voce) {
    nuova(*dettagli_, ordine);
    dettagli_->Fields()["CATEGORIA"].Value(voce.categoria);
    scriviServito(*dettagli_, voce);
    dettagli_->Update();
}

std::vector<Articolo> Cassa::articoliDi(const Voce& voce) {
    if (!voce.articoli.empty())
        return voce.articoli;
    const std::string codice = std::to_string(voce.categoria);
    const auto categoria = db_.OpenRecordset("Select Descrizione from Categorie Where Codice = " + codice);
    std::string nome = categoria->Eof() ? "" : categoria->Fields()["Descrizione"].Value().aTestoOVuoto();
    return {{nome.empty() ? "Categoria " + codice : nome, voce.pezzi, 5.0}};
}

double Cassa::scriviArticoli(const Ordine& ordine, const Voce& voce) {
    double totale = 0;
    for (const Articolo& a : articoliDi(voce)) {
        nuova(*articoli_, ordine);
        auto& campi = articoli_->Fields();
        campi["DataCompetenza"].Value(data_);
        campi["Descrizione"].Value(a.descrizione);
        campi["Quantita"].Value(a.quantita);
        campi["Prezzo"].Value(a.prezzo);
        if (totali_) // not every cash side's table has it
            campi["Totale"].Value(a.quantita * a.prezzo);
        scriviServito(*articoli_, voce);
        articoli_->Update();
        totale += a.quantita * a.prezzo;
    }
    return totale;
}

void Cassa::scriviScontrino(const Ordine& ordine, double totale) {
    nuova(*scontrini_, ordine);
    auto& campi = scontrini_->Fields();
    campi["DataCompetenza"].Value(data_);
    campi["Totale"].Value(totale);
    campi["Servito"].Value(std::any_of(ordine.voci.begin(), ordine.voci.end(), servita));
    scontrini_->Update();
}

} // namespace lumigrafo::archivio
