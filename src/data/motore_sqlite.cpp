#include "data/motore_sqlite.h"

#include "data/errori_dao.h"

#include <sqlite3.h>

namespace lumigrafo {

MotoreSqlite::MotoreSqlite(const std::filesystem::path& file, std::chrono::milliseconds attesa) {
    const int esito =
        sqlite3_open_v2(file.string().c_str(), &db_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    try {
        if (esito != SQLITE_OK)
            throw erroreDao(dao::kPermesso, file.string());
        sqlite3_extended_result_codes(db_, 1);
        sqlite3_busy_timeout(db_, static_cast<int>(attesa.count()));
        // An empty journal instead of a deleted one spares the folder's update at each commit. Stations with
        // another kind of rollback journal may work on the same file.
        esegui("PRAGMA journal_mode=TRUNCATE");
        esegui("PRAGMA synchronous=FULL");
        esegui("SELECT count(*) FROM sqlite_master"); // a damaged or locked file shows itself here
        prepara("PRAGMA data_version");
    } catch (...) {
        chiudi();
        throw;
    }
}

MotoreSqlite::~MotoreSqlite() {
    chiudi();
}

void MotoreSqlite::chiudi() noexcept {
    sqlite3_finalize(versione_);
    sqlite3_close_v2(db_);
}

bool MotoreSqlite::solaLettura() const {
    return sqlite3_db_readonly(db_, "main") == 1;
}

void MotoreSqlite::prepara(const char* sql) {
    if (sqlite3_prepare_v3(db_, sql, -1, SQLITE_PREPARE_PERSISTENT, &versione_, nullptr) != SQLITE_OK)
        throw erroreSqlite(db_, Operazione::Apertura, sql);
}

void MotoreSqlite::esegui(const char* sql) {
    if (sqlite3_exec(db_, sql, nullptr, nullptr, nullptr) != SQLITE_OK)
        throw erroreSqlite(db_, Operazione::Apertura, sql);
}

std::int64_t MotoreSqlite::iniziaLettura() {
    // The statement stays on its row: while it does, all others on this connection see the same state.
    if (sqlite3_step(versione_) != SQLITE_ROW) {
        const Guasto guasto = erroreSqlite(db_, Operazione::Lettura);
        fineLettura();
        throw guasto;
    }
    return sqlite3_column_int64(versione_, 0);
}

void MotoreSqlite::fineLettura() noexcept {
    sqlite3_reset(versione_);
}

} // namespace lumigrafo
