// The half of Recordset that changes rows.
#include "data/errori_dao.h"
#include "data/lessico.h"
#include "data/recordset.h"

#include <sqlite3.h>
#include <string_view>
#include <utility>

namespace lumigrafo {

using lessico::traVirgolette;

namespace {

void accoda(std::string& elenco, std::string_view voce) {
    if (!elenco.empty())
        elenco += ',';
    elenco += voce;
}

} // namespace

void Recordset::verificaModificabile() const {
    verificaAperto();
    if (!selezione_ || sessione_->motore().solaLettura())
        throw erroreDao(dao::kSolaLettura);
}

void Recordset::scrivi(std::size_t campo, const Valore& valore) {
    verificaAperto();
    if (stato_ == Stato::Fermo)
        throw erroreDao(dao::kNienteModifica);
    assegnati_[campo] = campi_.Item(campo).convertito(valore);
}

void Recordset::bloccaERileggi(std::size_t riga) {
    const std::int64_t chiave = righe_.chiave(riga);
    sessione_->bloccaRiga(selezione_->tabella, chiave);
    bloccata_ = chiave;
    try {
        if (rileggi(riga))
            return;
        righe_.elimina(riga);
        throw erroreDao(dao::kRecordEliminato);
    } catch (const Guasto&) {
        lascia();
        throw;
    }
}

void Recordset::Edit() {
    verificaModificabile();
    lascia();
    const std::size_t riga = corrente();
    if (bloccaSubito_) {
        bloccaERileggi(riga);
    } else {
        if (!rileggi(riga))
            throw erroreDao(dao::kRecordEliminato);
        allEdit_ = righe_.valori(riga);
    }
    inModifica_ = riga;
    assegnati_.assign(campi_.Count(), std::nullopt);
    stato_ = Stato::Modifica;
}

void Recordset::AddNew() {
    verificaModificabile();
    lascia();
    assegnati_.assign(campi_.Count(), std::nullopt);
    stato_ = Stato::Nuovo;
}

void Recordset::Update() {
    verificaAperto();
    switch (stato_) {
    case Stato::Fermo:
        throw erroreDao(dao::kNienteModifica);
    case Stato::Modifica:
        return scriviModifica();
    case Stato::Nuovo:
        return scriviNuovo();
    }
}

void Recordset::scriviModifica() {
    if (!bloccata_) {
        bloccaERileggi(inModifica_);
        if (righe_.valori(inModifica_) != allEdit_) {
            lascia();
            throw erroreDao(dao::kCambiatoDaAltri);
        }
    }
    std::string insieme;
    std::vector<const Valore*> valori;
    for (std::size_t i = 0; i < assegnati_.size(); ++i) {
        if (!assegnati_[i])
            continue;
        valori.push_back(&*assegnati_[i]);
        accoda(insieme, traVirgolette(campi_.Item(i).colonna()) + "=?" + std::to_string(valori.size()));
    }
    if (!valori.empty()) {
        Istruzione scrive =
            sessione_->prepara("UPDATE " + traVirgolette(selezione_->tabella) + " SET " + insieme +
                                   " WHERE _rowid_=?" + std::to_string(valori.size() + 1),
                               Operazione::Aggiornamento);
        for (std::size_t i = 0; i < valori.size(); ++i)
            scrive.lega(static_cast<int>(i) + 1, *valori[i]);
        scrive.lega(static_cast<int>(valori.size()) + 1, righe_.chiave(inModifica_));
        sessione_->cambia([&] { scrive.passo(); });
        sessione_->modificato();
        if (!rileggi(inModifica_)) { // another set of this program deleted it in the meantime
            lascia();
            throw erroreDao(dao::kRecordEliminato);
        }
    }
    stato_ = Stato::Fermo;
    sblocca();
}

void Recordset::scriviNuovo() {
    std::string colonne, parametri;
    std::vector<const Valore*> valori;
    for (std::size_t i = 0; i < assegnati_.size(); ++i) {
        if (!assegnati_[i])
            continue;
        valori.push_back(&*assegnati_[i]);
        accoda(colonne, traVirgolette(campi_.Item(i).colonna()));
        accoda(parametri, "?");
    }
    const std::string dati =
        valori.empty() ? " DEFAULT VALUES" : "(" + colonne + ") VALUES(" + parametri + ")";
    Istruzione scrive = sessione_->prepara("INSERT INTO " + traVirgolette(selezione_->tabella) + dati,
                                           Operazione::Inserimento);
    for (std::size_t i = 0; i < valori.size(); ++i)
        scrive.lega(static_cast<int>(i) + 1, *valori[i]);
    sessione_->ripetendo([&] { scrive.passo(); });
    sessione_->modificato();
    lascia();
    const std::int64_t chiave = sqlite3_last_insert_rowid(sessione_->motore().connessione());
    // The row is in the archive whether or not it can be read back now.
    ignorandoGuasti([&] { aggiungiLetta(chiave); });
}

void Recordset::sblocca() {
    const auto chiave = std::exchange(bloccata_, std::nullopt);
    if (!chiave)
        return;
    try {
        sessione_->sbloccaRiga(selezione_->tabella, *chiave);
    } catch (const Guasto&) {
        // Nothing was written: the row shows what the archive holds.
        ignorandoGuasti([this] { rileggi(inModifica_); });
        throw;
    }
}

void Recordset::CancelUpdate() {
    verificaAperto();
    stato_ = Stato::Fermo;
    sblocca();
}

void Recordset::perdiBlocco() noexcept {
    if (bloccata_)
        stato_ = Stato::Fermo;
    bloccata_.reset();
}

void Recordset::lascia() noexcept {
    stato_ = Stato::Fermo;
    ignorandoGuasti([this] { sblocca(); });
}

void Recordset::Delete() {
    verificaModificabile();
    lascia();
    const std::size_t riga = corrente();
    const std::int64_t chiave = righe_.chiave(riga);
    bloccaERileggi(riga);
    inModifica_ = riga;
    try {
        Istruzione toglie =
            sessione_->prepara("DELETE FROM " + traVirgolette(selezione_->tabella) + " WHERE _rowid_=?1",
                               Operazione::Aggiornamento);
        toglie.lega(1, chiave);
        sessione_->cambia([&] { toglie.passo(); });
        sessione_->modificato();
    } catch (const Guasto&) {
        lascia();
        throw;
    }
    sblocca();
    righe_.elimina(riga);
}

} // namespace lumigrafo
