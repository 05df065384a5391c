#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace lumigrafo::misure {

/// The floor of all work on the archive: SQLite alone, with the settings that the program gives it, each
/// statement prepared once. Throws std::runtime_error where a statement fails.
class Nudo {
public:
    explicit Nudo(const std::filesystem::path& archivio);
    ~Nudo();
    Nudo(const Nudo&) = delete;
    Nudo& operator=(const Nudo&) = delete;

    /// Lives as long as this object.
    [[nodiscard]] sqlite3_stmt* prepara(const std::string& sql);
    /// Steps through all rows; each is handed over once every column was read.
    void scorri(sqlite3_stmt* istruzione, const std::function<void(sqlite3_stmt*)>& riga = {});

private:
    sqlite3* db_ = nullptr;
    std::vector<sqlite3_stmt*> pronte_;
    std::int64_t letto_ = 0; ///< keeps the reading of the columns from being optimized away
};

/// The statements of one rebuild, on the bare engine.
class RicostruzioneNuda {
public:
    explicit RicostruzioneNuda(const std::filesystem::path& archivio);
    /// `ordine` is handed each row of the queue.
    void esegui(const std::function<void(sqlite3_stmt*)>& ordine = {});

private:
    Nudo nudo_;
    sqlite3_stmt *numero_, *togliServiti_, *coda_, *somma_;
};

} // namespace lumigrafo::misure
