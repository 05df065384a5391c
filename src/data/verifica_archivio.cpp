#include "data/verifica_archivio.h"

#include "data/errori_dao.h"
#include "data/formato.h"
#include "data/jet/danno.h"
#include "data/jet/ripara.h"
#include "data/jet/verifica.h"
#include "data/motore.h"
#include "platform/computer.h"

#include <chrono>
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

/// Mends with a copy made before: it stays where something was mended or went wrong, and takes the place of
/// an older one only then.
template <typename Cambio>
std::vector<std::string> conCopia(const std::filesystem::path& file, const std::filesystem::path& copia,
                                  Cambio&& cambio) {
    auto nuova = copia;
    nuova += ".tmp";
    std::error_code ec;
    if (!std::filesystem::copy_file(file, nuova, std::filesystem::copy_options::overwrite_existing, ec)) {
        std::error_code ignorato;
        std::filesystem::remove(nuova, ignorato);
        throw erroreDao(ec == std::errc::no_space_on_device ? dao::kDiscoPieno : dao::kPermesso,
                        copia.string());
    }
    std::vector<std::string> fatto;
    try {
        fatto = cambio();
    } catch (const Guasto&) {
        std::filesystem::rename(nuova, copia, ec);
        throw;
    }
    if (fatto.empty())
        std::filesystem::remove(nuova, ec);
    else
        std::filesystem::rename(nuova, copia, ec);
    return fatto;
}

std::vector<std::string> riparaAccess(const std::filesystem::path& file, const std::filesystem::path& copia) {
    try {
        jet::Pagine pagine(file, {.anche_tronco = true, .computer = nomeComputer()});
        if (pagine.solaLettura())
            throw erroreDao(dao::kSolaLettura);
        if (pagine.altreStazioni())
            throw erroreDao(dao::kInUso, file.string());
        return conCopia(file, copia, [&] { return jet::ripara(pagine); });
    } catch (const Guasto& guasto) {
        throw jet::nonRiparabile(guasto);
    }
}

} // namespace

std::vector<std::string> riparaArchivio(const std::filesystem::path& file,
                                        const std::filesystem::path& copia) {
    if (formatoDi(file) == Formato::Access)
        return riparaAccess(file, copia);
    return conCopia(file, copia, [&]() -> std::vector<std::string> {
        const std::unique_ptr<Motore> motore = apriMotore(file, std::chrono::milliseconds(0));
        if (sqlite3_exec(motore->connessione(), "BEGIN EXCLUSIVE; REINDEX; COMMIT", nullptr, nullptr,
                         nullptr) != SQLITE_OK)
            throw erroreSqlite(motore->connessione(), Operazione::Apertura);
        return {"Rifatti tutti gli indici."};
    });
}

EsitoVerifica verificaArchivio(const std::filesystem::path& file) {
    return formatoDi(file) == Formato::Sqlite ? verificaSqlite(file) : verificaAccess(file);
}

} // namespace lumigrafo
