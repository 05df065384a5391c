#include "data/recordset.h"

#include "data/errori_dao.h"
#include "data/lessico.h"

#include <algorithm>
#include <sqlite3.h>
#include <utility>

namespace lumigrafo {

namespace {

/// One state of the archive for as long as it lives.
struct Lettura {
    explicit Lettura(Motore& m) : motore(m), versione(m.iniziaLettura()) {}
    ~Lettura() { motore.fineLettura(); }
    Lettura(const Lettura&) = delete;
    Lettura& operator=(const Lettura&) = delete;

    Motore& motore;
    const std::int64_t versione;
};

std::string conChiave(const std::string& voci, const Selezione& s) {
    // Behind the columns, so that "Order by 2" still means the second of them.
    return "SELECT " + voci + ", _rowid_ " + s.da;
}

/// The rows of a view have none.
bool haChiave(const Motore& motore, const std::string& tabella) {
    return sqlite3_table_column_metadata(motore.connessione(), nullptr, tabella.c_str(), "_rowid_", nullptr,
                                         nullptr, nullptr, nullptr, nullptr) == SQLITE_OK;
}

/// The statement that asks for whole rows; empty where there is none. A number behind "Order by" stands for
/// the column at that place of the list, which would be another list.
std::string conRigheIntere(const Motore& motore, const Selezione& s) {
    const auto pezzi = lessico::spezza(s.resto);
    const bool numeri = std::any_of(pezzi.begin(), pezzi.end(), [](const lessico::Pezzo& p) {
        return p.genere == lessico::Genere::Numero;
    });
    if (!s.colonne.empty() || numeri || !motore.righeIntere(s.tabella))
        return {};
    return conChiave(lessico::traVirgolette(RigaIntera::kColonna), s) + s.resto;
}

} // namespace

Recordset::Recordset(std::shared_ptr<Sessione> sessione, const std::string& sorgente)
    : sessione_(std::move(sessione)), sorgente_(sorgente) {
    const std::string sql = sessione_->dialetto().sorgente(sorgente);
    selezione_ = selezioneSemplice(sql);
    if (selezione_ && !haChiave(sessione_->motore(), selezione_->tabella))
        selezione_.reset();
    sql_ = selezione_ ? conChiave(selezione_->voci, *selezione_) + selezione_->resto : sql;
    if (selezione_)
        intere_ = conRigheIntere(sessione_->motore(), *selezione_);
    carica();
    sessione_->iscrivi(*this);
}

Recordset::~Recordset() {
    Close();
}

void Recordset::Close() noexcept {
    if (!std::exchange(aperto_, false))
        return;
    lascia();
    sessione_->cancella(*this);
    sessione_->rendiRighe(std::move(righe_));
}

void Recordset::verificaAperto() const {
    if (!aperto_)
        throw erroreDao(dao::kOggettoNonValido);
}

Guasto Recordset::senzaCorrente() const {
    if (!aperto_)
        return erroreDao(dao::kOggettoNonValido);
    return erroreDao(posizione_ >= righe_.quante() ? dao::kNessunRecord : dao::kRecordEliminato);
}

void Recordset::definisciCampi(sqlite3_stmt* stmt) {
    const auto n = static_cast<std::size_t>(sqlite3_column_count(stmt)) - (selezione_ ? 1 : 0);
    campi_.prepara(n);
    for (std::size_t i = 0; i < n; ++i) {
        const int c = static_cast<int>(i);
        const std::string nome = sqlite3_column_name(stmt, c);
        std::string colonna;
        if (selezione_)
            colonna = selezione_->colonne.empty() ? nome : selezione_->colonne[i];
        campi_.aggiungi(Field(*this, i, nome, std::move(colonna), sqlite3_column_decltype(stmt, c)));
    }
}

void Recordset::carica() {
    // One and the same statement where the rows don't come in one piece.
    const Istruzione colonne = sessione_->prepara(sql_, Operazione::Lettura, sorgente_);
    Istruzione istruzione = sessione_->prepara(intere_.empty() ? sql_ : intere_, Operazione::Lettura);
    const Lettura lettura(sessione_->motore());
    // The first step may find that another program changed the table; only then are the columns known.
    bool riga = istruzione.passo();
    if (campi_.Count() == 0)
        definisciCampi(colonne.stmt());
    Righe nuove = sessione_->prestaRighe();
    nuove.azzera(campi_.Count(), selezione_.has_value());
    const auto accoda = intere_.empty() ? &Righe::accoda : &Righe::accodaIntera;
    for (; riga; riga = istruzione.passo())
        (nuove.*accoda)(istruzione.stmt());
    std::swap(righe_, nuove);
    sessione_->rendiRighe(std::move(nuove));
    versione_ = lettura.versione;
    modifiche_ = sessione_->modifiche();
    posizione_ = 0;
}

bool Recordset::ancoraValide(std::int64_t versione) const {
    return versione == versione_ && sessione_->modifiche() == modifiche_;
}

void Recordset::Requery() {
    verificaAperto();
    lascia();
    const std::int64_t versione = Lettura(sessione_->motore()).versione;
    if (!ancoraValide(versione))
        carica();
    posizione_ = 0;
}

void Recordset::allaPrimaViva(std::size_t da) {
    while (da < righe_.quante() && righe_.eliminata(da))
        ++da;
    posizione_ = da;
}

void Recordset::MoveFirst() {
    verificaAperto();
    lascia();
    if (righe_.vive() == 0)
        throw erroreDao(dao::kNessunRecord);
    allaPrimaViva(0);
}

void Recordset::MoveLast() {
    MoveFirst();
    for (std::size_t i = righe_.quante(); i-- > posizione_;) {
        if (righe_.eliminata(i))
            continue;
        posizione_ = i;
        return;
    }
}

void Recordset::MoveNext() {
    verificaAperto();
    lascia();
    if (Eof())
        throw erroreDao(dao::kNessunRecord);
    allaPrimaViva(posizione_ + 1);
}

bool Recordset::Eof() const {
    verificaAperto();
    return posizione_ >= righe_.quante();
}

std::int32_t Recordset::RecordCount() const {
    verificaAperto();
    return static_cast<std::int32_t>(righe_.vive());
}

std::vector<std::int64_t> Recordset::chiaviDi(const std::string& criterio) {
    Istruzione trova = sessione_->prepara("SELECT _rowid_ " + selezione_->da + " WHERE (" + criterio + ")",
                                          Operazione::Criterio);
    std::vector<std::int64_t> chiavi;
    while (trova.passo())
        chiavi.push_back(sqlite3_column_int64(trova.stmt(), 0));
    return chiavi;
}

std::optional<std::size_t> Recordset::cercaPosizione(const std::string& criterio) {
    if (selezione_)
        return righe_.prima(chiaviDi(criterio));
    // Rows without a key are found by their place in the same order.
    Istruzione trova =
        sessione_->prepara("SELECT posto_ FROM (SELECT row_number() OVER () - 1 AS posto_, * FROM (" +
                               sql_.substr(0, sql_.find_last_not_of("; \r\n") + 1) + ")) WHERE (" + criterio +
                               ") ORDER BY 1 LIMIT 1",
                           Operazione::Criterio);
    if (!trova.passo())
        return std::nullopt;
    const auto posto = static_cast<std::size_t>(sqlite3_column_int64(trova.stmt(), 0));
    return posto < righe_.quante() ? std::optional(posto) : std::nullopt;
}

void Recordset::FindFirst(const std::string& criterio) {
    verificaAperto();
    lascia();
    const auto trovata = cercaPosizione(sessione_->dialetto().criterio(criterio));
    noMatch_ = !trovata;
    if (!trovata)
        return;
    posizione_ = *trovata;
    if (selezione_)
        rileggi(posizione_);
}

Istruzione Recordset::preparaRiga(std::int64_t chiave) {
    Istruzione riga = sessione_->prepara(conChiave(selezione_->voci, *selezione_) + " WHERE _rowid_ = ?1",
                                         Operazione::Lettura);
    riga.lega(1, chiave);
    return riga;
}

bool Recordset::rileggi(std::size_t riga) {
    Istruzione letta = preparaRiga(righe_.chiave(riga));
    if (!letta.passo())
        return false;
    righe_.sostituisci(riga, letta.stmt());
    return true;
}

void Recordset::aggiungiLetta(std::int64_t chiave) {
    Istruzione letta = preparaRiga(chiave);
    if (!letta.passo())
        return;
    const bool allaFine = Eof();
    righe_.accoda(letta.stmt());
    if (allaFine)
        posizione_ = righe_.quante();
}

lumigrafo::Fields& Recordset::Fields() {
    verificaAperto();
    return campi_;
}

Valore Recordset::valoreInModifica(std::size_t campo) const {
    if (assegnati_[campo])
        return *assegnati_[campo];
    return stato_ == Stato::Nuovo ? Valore() : righe_.valore(corrente(), campo);
}

} // namespace lumigrafo
