#include "data/motore_access.h"

#include "data/errori_dao.h"
#include "data/jet/tabella.h"
#include "data/riga_intera.h"
#include "platform/computer.h"

#include <sqlite3.h>
#include <string_view>

namespace lumigrafo {

namespace {

/// Rows are read and written; nothing is ever made but them. What SQLite made would be in its memory alone.
int permesso(void*, int azione, const char*, const char*, const char*, const char*) {
    switch (azione) {
    case SQLITE_SELECT:
    case SQLITE_READ:
    case SQLITE_FUNCTION:
    case SQLITE_RECURSIVE:
    case SQLITE_INSERT:
    case SQLITE_UPDATE:
    case SQLITE_DELETE:
    case SQLITE_TRANSACTION:
    case SQLITE_SAVEPOINT:
    case SQLITE_PRAGMA:
        return SQLITE_OK;
    default:
        return SQLITE_DENY;
    }
}

} // namespace

MotoreAccess::MotoreAccess(const std::filesystem::path& file, std::chrono::milliseconds attesa)
    : pagine_(file, {.computer = nomeComputer(), .attesa = attesa}), tabelle_(pagine_) {
    // The tables are the file's; nothing of them is kept in this memory.
    const int esito = sqlite3_open_v2(":memory:", &db_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    try {
        if (esito != SQLITE_OK)
            throw erroreDao(dao::kPermesso, file.string());
        sqlite3_extended_result_codes(db_, 1);
        tabelle_.crea(db_);
        sqlite3_set_authorizer(db_, permesso, nullptr);
    } catch (...) {
        sqlite3_close_v2(db_);
        throw;
    }
}

MotoreAccess::~MotoreAccess() {
    sqlite3_close_v2(db_);
}

bool MotoreAccess::righeIntere(const std::string& tabella) const {
    const char* tipo = nullptr;
    return sqlite3_table_column_metadata(db_, nullptr, tabella.c_str(), RigaIntera::kColonna, &tipo, nullptr,
                                         nullptr, nullptr, nullptr) == SQLITE_OK &&
           tipo && std::string_view(tipo) == RigaIntera::kTipo;
}

void MotoreAccess::bloccaRiga(const std::string& tabella, std::int64_t riga) {
    jet::Tabella(pagine_, tabelle_.definizioneDi(tabella)).riserva(TabelleVirtuali::posizione(riga));
}

void MotoreAccess::cedevole(bool si) {
    cedevoli_ += si ? 1 : -1;
    if (cedevoli_ == 0)
        breve_.reset();
    else if (!breve_)
        breve_.emplace(pagine_);
}

} // namespace lumigrafo
