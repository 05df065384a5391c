#include "data/sessione.h"

#include "data/jet/pazienza.h"
#include "data/lessico.h"
#include "data/nullo_voluto.h"
#include "data/recordset.h"
#include "platform/conversioni.h"

#include <algorithm>
#include <set>
#include <sqlite3.h>

namespace lumigrafo {

namespace {

/// The program has a handful of statements, most of them with numbers put into the text.
constexpr std::size_t kPronte = 32;

bool diTesto(const char* tipo) {
    const std::string t = maiuscolo(tipo ? tipo : "");
    return t.find("CHAR") != t.npos || t.find("TEXT") != t.npos || t.find("CLOB") != t.npos || t == "MEMO";
}

/// The text columns, in whatever table, whose declaration doesn't let "a" equal "A".
std::set<std::string> colonneConMaiuscole(sqlite3* db) {
    std::set<std::string> nomi;
    sqlite3_stmt* elenco = nullptr;
    const char* sql =
        "SELECT m.name, c.name FROM sqlite_master m, pragma_table_info(m.name) c WHERE m.type = 'table'";
    if (sqlite3_prepare_v2(db, sql, -1, &elenco, nullptr) != SQLITE_OK)
        throw erroreSqlite(db, Operazione::Apertura);
    const std::shared_ptr<sqlite3_stmt> chiude(elenco, sqlite3_finalize);
    int passo = SQLITE_ROW;
    while ((passo = sqlite3_step(elenco)) == SQLITE_ROW) {
        const char *tipo = nullptr, *confronto = nullptr;
        const auto* tabella = reinterpret_cast<const char*>(sqlite3_column_text(elenco, 0));
        const auto* colonna = reinterpret_cast<const char*>(sqlite3_column_text(elenco, 1));
        const int esito = sqlite3_table_column_metadata(db, "main", tabella, colonna, &tipo, &confronto,
                                                        nullptr, nullptr, nullptr);
        if (esito == SQLITE_OK && diTesto(tipo) && ugualeSenzaMaiuscole(confronto, "BINARY"))
            nomi.insert(minuscolo(colonna));
    }
    if (passo != SQLITE_DONE)
        throw erroreSqlite(db, Operazione::Apertura);
    return nomi;
}

} // namespace

Istruzione::~Istruzione() {
    if (!stmt_)
        return;
    sqlite3_reset(stmt_.get());
    sqlite3_clear_bindings(stmt_.get());
}

void Istruzione::lega(int parametro, const Valore& valore) {
    int esito = SQLITE_OK;
    if (valore.nullo())
        esito = legaNullo(stmt(), parametro);
    else if (valore.intero())
        esito = sqlite3_bind_int64(stmt(), parametro, valore.aIntero64());
    else if (valore.doppio())
        esito = sqlite3_bind_double(stmt(), parametro, valore.aDoppio());
    else {
        const std::string t = valore.aTesto();
        esito = sqlite3_bind_text(stmt(), parametro, t.data(), static_cast<int>(t.size()), SQLITE_TRANSIENT);
    }
    if (esito != SQLITE_OK)
        throw erroreSqlite(sqlite3_db_handle(stmt()), op_);
}

bool Istruzione::passo() {
    const int esito = sqlite3_step(stmt());
    if (esito != SQLITE_ROW && esito != SQLITE_DONE)
        throw erroreSqlite(sqlite3_db_handle(stmt()), op_, sqlite3_sql(stmt()));
    return esito == SQLITE_ROW;
}

Sessione::Sessione(const std::filesystem::path& file, std::chrono::milliseconds attesa)
    : attesa_(attesa), motore_(apriMotore(file, attesa)),
      dialetto_(colonneConMaiuscole(motore_->connessione())) {}

Sessione::~Sessione() {
    chiudi();
}

void Sessione::chiudi() {
    if (!aperta())
        return;
    while (!insiemi_.empty())
        insiemi_.back()->Close(); // each strikes itself off
    motore_->annulla();
    pronte_.clear();
    bloccate_.clear();
    motore_.reset();
}

Motore& Sessione::motore() const {
    if (!aperta())
        throw erroreDao(dao::kOggettoNonValido);
    return *motore_;
}

std::shared_ptr<sqlite3_stmt> Sessione::compila(const std::string& sql, Operazione operazione,
                                                std::string_view comeScritta) const {
    sqlite3* db = motore().connessione();
    sqlite3_stmt* stmt = nullptr;
    const char* resto = nullptr;
    if (sqlite3_prepare_v3(db, sql.data(), static_cast<int>(sql.size()), SQLITE_PREPARE_PERSISTENT, &stmt,
                           &resto) != SQLITE_OK) {
        const Guasto guasto = erroreSqlite(db, operazione, comeScritta.empty() ? sql : comeScritta);
        const auto tabella = tabellaMancante(db);
        throw(tabella ? motore().inservibile(*tabella) : std::nullopt).value_or(guasto);
    }
    std::shared_ptr<sqlite3_stmt> pronta(stmt, sqlite3_finalize);
    if (!pronta) // blanks alone
        throw erroreDao(dao::kSintassiQuery, sql);
    const auto coda =
        lessico::spezza(std::string_view(resto, static_cast<std::size_t>(sql.data() + sql.size() - resto)));
    if (lessico::Lettore(coda).quanti() > 0)
        throw erroreDao(dao::kDopoLaFine);
    return pronta;
}

Istruzione Sessione::prepara(const std::string& sql, Operazione operazione, std::string_view comeScritta) {
    const auto nota =
        std::find_if(pronte_.begin(), pronte_.end(), [&](const Pronta& p) { return p.first == sql; });
    if (nota != pronte_.end()) {
        std::rotate(pronte_.begin(), nota, nota + 1);
    } else {
        auto nuova = compila(sql, operazione, comeScritta);
        if (pronte_.size() == kPronte)
            pronte_.pop_back(); // whoever still uses it keeps it alive
        pronte_.insert(pronte_.begin(), {sql, std::move(nuova)});
    }
    return {pronte_.front().second, operazione};
}

std::int32_t Sessione::esegui(std::string_view sql) {
    sqlite3* db = motore().connessione();
    const std::string tradotta = dialetto_.istruzione(sql);
    const auto pezzi = lessico::spezza(tradotta);
    const bool inserimento = lessico::Lettore(pezzi).e(0, "INSERT");
    const auto operazione = inserimento ? Operazione::Inserimento : Operazione::Aggiornamento;
    if (sqlite3_column_count(prepara(tradotta, operazione, sql).stmt()) > 0)
        throw erroreDao(dao::kQueryDiSelezione);
    const int prima = sqlite3_total_changes(db);
    ripetendo([&] { prepara(tradotta, operazione).passo(); });
    modificato();
    // What a trigger changes isn't counted, and a statement that changes no rows leaves the old count.
    return sqlite3_total_changes(db) == prima ? 0 : sqlite3_changes(db);
}

void Sessione::cambia(const std::function<void()>& cambio) {
    try {
        cambio();
    } catch (const Guasto&) {
        if (motore().perduta())
            annulla();
        throw;
    }
}

void Sessione::ripetendo(const std::function<void()>& cambio) {
    // Inside a transaction a lock is waited for to the end; a statement alone gives up what it holds instead.
    const bool solo = sqlite3_get_autocommit(motore().connessione()) != 0;
    const Cedevole cede(solo ? &motore() : nullptr);
    for (jet::Pazienza pazienza(attesa_);;) {
        try {
            return cambia(cambio);
        } catch (const Guasto& guasto) {
            const bool cambiata = guasto.numero() == dao::kCambiatoDaAltri;
            const bool bloccata = guasto.numero() == dao::kBloccatoAggiornamento ||
                                  guasto.numero() == dao::kBloccatoSalvataggio;
            const bool ritenta = cambiata || (bloccata && solo);
            if (!motore().siRipete() || !ritenta || !pazienza.ancora())
                throw;
        }
        pazienza.attendi();
    }
}

void Sessione::bloccaRiga(const std::string& tabella, std::int64_t riga) {
    Riga r(minuscolo(tabella), riga);
    if (std::find(bloccate_.begin(), bloccate_.end(), r) != bloccate_.end())
        throw erroreDao(dao::kBloccatoQui);
    motore().blocca(tabella, riga);
    bloccate_.push_back(std::move(r));
}

void Sessione::sbloccaRiga(const std::string& tabella, std::int64_t riga) {
    std::erase(bloccate_, Riga(minuscolo(tabella), riga));
    sblocca();
}

void Sessione::sblocca() {
    try {
        motore().sblocca();
    } catch (const Guasto&) { // all of the transaction is undone
        perdiBlocchi();
        throw;
    }
}

void Sessione::inizia() {
    motore().blocca({}, 0);
    ++transazioni_;
}

void Sessione::conferma() {
    if (transazioni_ == 0) // what is locked belongs to an Edit
        return;
    --transazioni_;
    sblocca();
}

void Sessione::annulla() {
    motore().annulla();
    perdiBlocchi();
}

void Sessione::perdiBlocchi() {
    transazioni_ = 0;
    bloccate_.clear();
    for (Recordset* insieme : insiemi_)
        insieme->perdiBlocco();
    modificato();
}

} // namespace lumigrafo
