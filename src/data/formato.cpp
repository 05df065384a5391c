#include "data/formato.h"

#include "data/errori_dao.h"

#include <array>
#include <memory>
#include <sqlite3.h>
#include <string_view>

namespace lumigrafo {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view kSqlite = "SQLite format 3\0"sv;
/// Of all versions, readable or not.
constexpr std::string_view kAccess[] = {"\0\1\0\0Standard Jet DB"sv, "\0\1\0\0Standard ACE DB"sv,
                                        "\0\1\0\0MSISAM Database"sv};

using PrimiByte = std::array<char, 20>;

struct Chiudi {
    void operator()(sqlite3* db) const { sqlite3_close_v2(db); }
};

/// Read through SQLite's own file layer: on some systems closing a file drops every lock that the process
/// holds on it, and that layer alone knows of another connection's locks.
PrimiByte leggiPrimiByte(const std::filesystem::path& file) {
    sqlite3* db = nullptr;
    const int esito =
        sqlite3_open_v2(file.string().c_str(), &db, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, nullptr);
    const std::unique_ptr<sqlite3, Chiudi> chiude(db);
    sqlite3_file* aperto = nullptr;
    if (esito != SQLITE_OK ||
        sqlite3_file_control(db, "main", SQLITE_FCNTL_FILE_POINTER, &aperto) != SQLITE_OK ||
        !aperto->pMethods)
        throw erroreDao(dao::kPermesso, file.string());
    PrimiByte byte{}; // a shorter file leaves zeros
    const int letto = aperto->pMethods->xRead(aperto, byte.data(), static_cast<int>(byte.size()), 0);
    if (letto != SQLITE_OK && letto != SQLITE_IOERR_SHORT_READ) // a folder, too
        throw erroreDao(dao::kPermesso, file.string());
    return byte;
}

} // namespace

Formato formatoDi(const std::filesystem::path& file) {
    std::error_code ec;
    if (!std::filesystem::exists(file, ec)) {
        const auto cartella = file.parent_path();
        const bool senzaCartella = !cartella.empty() && !std::filesystem::is_directory(cartella, ec);
        throw senzaCartella ? erroreDao(dao::kPercorso, cartella.string())
                            : erroreDao(dao::kFileMancante, file.string());
    }
    const PrimiByte byte = leggiPrimiByte(file);
    const std::string_view inizio(byte.data(), byte.size());
    if (inizio.starts_with(kSqlite))
        return Formato::Sqlite;
    for (const std::string_view famiglia : kAccess)
        if (inizio.starts_with(famiglia))
            return Formato::Access;
    throw erroreDao(dao::kFormato, file.string());
}

} // namespace lumigrafo
