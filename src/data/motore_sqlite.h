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
    void blocca(const std::string& tabella, std::int64_t riga) override;
    void sblocca() override;
    void annulla() noexcept override;

private:
    void prepara(const char* sql);
    void esegui(const char* sql);
    void chiudi() noexcept;

    sqlite3* db_ = nullptr;
    sqlite3_stmt* versione_ = nullptr;
    int blocchi_ = 0;
};

} // namespace lumigrafo
