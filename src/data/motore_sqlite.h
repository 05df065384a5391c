#pragma once

#include "data/motore.h"

struct sqlite3_stmt;

namespace lumigrafo {

/// The embedded archive: one SQLite file, shared by several processes through a rollback journal. Its
/// smallest lock is the whole file: a row that is locked keeps every other station from writing, and none
/// from reading.
class MotoreSqlite : public Motore {
public:
    MotoreSqlite(const std::filesystem::path& file, std::chrono::milliseconds attesa);
    ~MotoreSqlite() override;

    [[nodiscard]] sqlite3* connessione() const override { return db_; }
    [[nodiscard]] bool solaLettura() const override;
    std::int64_t iniziaLettura() override;
    void fineLettura() noexcept override;

private:
    [[nodiscard]] const char* inizio() const override { return "BEGIN IMMEDIATE"; } // locks the whole file
    void prepara(const char* sql);
    void esegui(const char* sql);
    void chiudi() noexcept;

    sqlite3* db_ = nullptr;
    sqlite3_stmt* versione_ = nullptr;
};

} // namespace lumigrafo
