#include "data/motore.h"

#include "data/errori_dao.h"
#include "data/formato.h"
#include "data/motore_access.h"
#include "data/motore_sqlite.h"

#include <sqlite3.h>

namespace lumigrafo {

void Motore::blocca(const std::string& tabella, std::int64_t riga) {
    sqlite3* db = connessione();
    if (blocchi_ == 0 && sqlite3_exec(db, inizio(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw erroreSqlite(db, Operazione::Aggiornamento);
    ++blocchi_;
    if (tabella.empty()) // a transaction, no row
        return;
    try {
        bloccaRiga(tabella, riga);
    } catch (const Guasto&) {
        if (blocchi_ == 1)
            annulla();
        else
            --blocchi_;
        throw;
    }
}

void Motore::sblocca() {
    if (blocchi_ == 0 || --blocchi_ > 0)
        return;
    if (sqlite3_exec(connessione(), "COMMIT", nullptr, nullptr, nullptr) != SQLITE_OK) {
        const Guasto guasto = erroreSqlite(connessione(), Operazione::Aggiornamento);
        annulla();
        throw guasto;
    }
    rilascia();
}

bool Motore::perduta() const {
    return blocchi_ > 0 && sqlite3_get_autocommit(connessione()) != 0;
}

void Motore::annulla() noexcept {
    if (sqlite3_get_autocommit(connessione()) == 0)
        sqlite3_exec(connessione(), "ROLLBACK", nullptr, nullptr, nullptr);
    rilascia();
    blocchi_ = 0;
}

std::unique_ptr<Motore> apriMotore(const std::filesystem::path& file, std::chrono::milliseconds attesa) {
    switch (formatoDi(file)) {
    case Formato::Sqlite:
        return std::make_unique<MotoreSqlite>(file, attesa);
    case Formato::Access:
        return std::make_unique<MotoreAccess>(file, attesa);
    }
    return nullptr;
}

} // namespace lumigrafo
