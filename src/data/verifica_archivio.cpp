#include "data/verifica_archivio.h"

#include "data/errori_dao.h"
#include "data/formato.h"
#include "data/jet/verifica.h"

#include <memory>
#include <sqlite3.h>

namespace lumigrafo {

namespace {

EsitoVerifica verificaSqlite(const std::filesystem::path& file) {
    sqlite3* db = nullptr;
    const int esito = sqlite3_open_v2(file.string().c_str(), &db, SQLITE_OPEN_READWRITE, nullptr);
    const std::unique_ptr<sqlite3, decltype(&sqlite3_close_v2)> chiude(db, sqlite3_close_v2);
    sqlite3_stmt* stmt = nullptr;
    if (esito != SQLITE_OK ||
        sqlite3_prepare_v2(db, "PRAGMA integrity_check", -1, &stmt, nullptr) != SQLITE_OK)
        throw erroreSqlite(db, Operazione::Apertura);
    const std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)> finisce(stmt, sqlite3_finalize);
    EsitoVerifica e;
    int passo = SQLITE_ROW;
    while ((passo = sqlite3_step(stmt)) == SQLITE_ROW)
        e.discordanze.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(stmt, 0)));
    if (passo != SQLITE_DONE)
        throw erroreSqlite(db, Operazione::Lettura);
    if (e.discordanze == std::vector<std::string>{"ok"})
        e.discordanze.clear();
    return e;
}

EsitoVerifica verificaAccess(const std::filesystem::path& file) {
    jet::Pagine pagine(file, {});
    jet::Esame esame = jet::verifica(pagine);
    const auto quante = [](std::size_t n, const char* cosa) { return std::to_string(n) + ' ' + cosa; };
    esame.note.push_back("Lette " + quante(esame.pagine, "pagine, ") + quante(esame.tabelle, "tabelle, ") +
                         quante(esame.righe, "righe, ") + quante(esame.indici, "indici."));
    return {std::move(esame.discordanze), std::move(esame.note)};
}

} // namespace

EsitoVerifica verificaArchivio(const std::filesystem::path& file) {
    return formatoDi(file) == Formato::Sqlite ? verificaSqlite(file) : verificaAccess(file);
}

} // namespace lumigrafo
