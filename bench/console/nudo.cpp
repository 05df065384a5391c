#include "bench/console/nudo.h"

#include "data/istruzioni.h"

#include <sqlite3.h>
#include <stdexcept>

namespace lumigrafo::misure {

namespace {

/// Without the table's name before the `from`, which is no SQL to SQLite.
std::string togliServiti() {
    const std::string sql = istruzioni::kTogliServiti;
    return "Delete " + sql.substr(sql.find("from"));
}

} // namespace

Nudo::Nudo(const std::filesystem::path& archivio) {
    sqlite3_open_v2(archivio.c_str(), &db_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    sqlite3_busy_timeout(db_, 5000);
    for (const char* sql : {"PRAGMA journal_mode=TRUNCATE", "PRAGMA synchronous=FULL"})
        scorri(prepara(sql));
}

Nudo::~Nudo() {
    for (sqlite3_stmt* pronta : pronte_)
        sqlite3_finalize(pronta);
    sqlite3_close(db_);
}

sqlite3_stmt* Nudo::prepara(const std::string& sql) {
    sqlite3_stmt* pronta = nullptr;
    if (sqlite3_prepare_v3(db_, sql.c_str(), -1, SQLITE_PREPARE_PERSISTENT, &pronta, nullptr) != SQLITE_OK)
        throw std::runtime_error(sql + ": " + sqlite3_errmsg(db_));
    return pronte_.emplace_back(pronta);
}

void Nudo::scorri(sqlite3_stmt* s, const std::function<void(sqlite3_stmt*)>& riga) {
    int esito = SQLITE_ROW;
    while ((esito = sqlite3_step(s)) == SQLITE_ROW) {
        for (int i = 0, n = sqlite3_column_count(s); i < n; ++i)
            if (sqlite3_column_type(s, i) == SQLITE_TEXT)
                letto_ += sqlite3_column_text(s, i)[0];
            else
                letto_ += sqlite3_column_int64(s, i);
        if (riga)
            riga(s);
    }
    if (esito != SQLITE_DONE)
        throw std::runtime_error(sqlite3_errmsg(db_));
    sqlite3_reset(s);
}

RicostruzioneNuda::RicostruzioneNuda(const std::filesystem::path& archivio)
    : nudo_(archivio), numero_(nudo_.prepara("Select * from Numero")),
      togliServiti_(nudo_.prepara(togliServiti())), coda_(nudo_.prepara(istruzioni::kLumigrafo)),
      somma_(nudo_.prepara(istruzioni::kSommaPezzi)) {}

void RicostruzioneNuda::esegui(const std::function<void(sqlite3_stmt*)>& ordine) {
    nudo_.scorri(numero_);
    nudo_.scorri(togliServiti_);
    nudo_.scorri(coda_, ordine);
    nudo_.scorri(somma_);
}

} // namespace lumigrafo::misure
