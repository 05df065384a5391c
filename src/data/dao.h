#pragma once

#include "data/errori_dao.h"
#include "data/recordset.h"
#include "data/sessione.h"
#include "data/valore.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

/// The archive in the words of DAO. All of it belongs to one thread.
namespace lumigrafo {

/// The archive's file in its folder.
inline constexpr const char* kFileArchivio = "archivio.mdb";

/// An open archive. Destroying it closes it.
class Database {
public:
    explicit Database(std::shared_ptr<Sessione> sessione) : sessione_(std::move(sessione)) {}
    ~Database() { Close(); }
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    /// Runs one statement that changes rows, whole or not at all; returns how many rows it changed. Throws
    /// Guasto: 3075 (syntax), 3078 (no such table), 3061 (no such column), 3022 (duplicate key), 3218 and
    /// 3186 and 3187 (locked by another station for the whole wait), 3027 (read-only), 3065 (a selection),
    /// 3420 (closed).
    std::int32_t Execute(const std::string& sql) { return sessione_->esegui(sql); }
    /// A table by name or a selection, in the program's SQL. Throws Guasto as Execute does, 3187 for a lock.
    [[nodiscard]] std::unique_ptr<Recordset> OpenRecordset(const std::string& sorgente,
                                                           int tipo = dao::dbOpenDynaset);
    /// Closes its record sets as well, giving up what they were changing. It can be closed again.
    void Close() { sessione_->chiudi(); }

private:
    std::shared_ptr<Sessione> sessione_;
};

/// A session of work on archives.
class Workspace {
public:
    /// The longest wait for another station's lock, in all archives that this workspace opens.
    static constexpr std::chrono::milliseconds kAttesa{5000};
    explicit Workspace(std::chrono::milliseconds attesa = kAttesa) : attesa_(attesa) {}

    /// Opens an archive shared, for reading and writing; the kind of file is told by its first bytes. UTF-8
    /// path. Throws Guasto 3024 (no such file), 3044 (no such folder), 3051 (not to be opened), 3343 (no
    /// archive that this version reads), 3045 (in use exclusively).
    [[nodiscard]] std::unique_ptr<Database> OpenDatabase(const std::string& percorso);

    /// What is written from here on, in every archive that is open, is kept as a whole by CommitTrans or
    /// undone as a whole by Rollback. Throws Guasto 3218 where another station is writing.
    void BeginTrans();
    /// Without BeginTrans it does nothing.
    void CommitTrans();
    /// An Edit that holds its row is over.
    void Rollback();
    /// Does work that is one transaction, or undoes itself where it throws. Another station may wait for what
    /// this one holds and hold what it waits for: so this one waits for a lock but briefly, gives up what it
    /// has and begins `lavoro` anew, up to the longest wait. Throws Guasto 3218 behind that, and what
    /// `lavoro` throws.
    void cedendo(const std::function<void()>& lavoro);

private:
    [[nodiscard]] std::vector<std::shared_ptr<Sessione>> aperte();

    std::chrono::milliseconds attesa_;
    std::vector<std::weak_ptr<Sessione>> sessioni_;
};

/// The engine, one for the program.
class DBEngine {
public:
    /// Item 0, the default workspace, is the only one; another throws Guasto 3265.
    [[nodiscard]] static Workspace& Workspaces(int indice);
    /// Gives the engine a moment. Nothing needs it: each reading looks for itself whether another station has
    /// written, so dbRefreshCache finds no stale cache.
    static void Idle(int opzioni = 0) { static_cast<void>(opzioni); }
};

} // namespace lumigrafo
