#pragma once

#include "platform/guasto.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

struct sqlite3;

namespace lumigrafo {

/// An archive file behind its SQL. All statements run on the SQLite connection that the engine gives; what
/// differs from file to file is how a state of the archive is held while it is read, and how a row is locked.
class Motore {
public:
    virtual ~Motore() = default;

    /// Ready for statements; lives as long as the engine.
    [[nodiscard]] virtual sqlite3* connessione() const = 0;
    /// The file can't be written by this process.
    [[nodiscard]] virtual bool solaLettura() const = 0;

    /// Why a table that the archive names can't be used; nothing where there is no such table.
    [[nodiscard]] virtual std::optional<Guasto> inservibile(const std::string& /*tabella*/) const {
        return std::nullopt;
    }

    /// Whether the rows of a table are to be had in one piece as well, from the column RigaIntera::kColonna.
    [[nodiscard]] virtual bool righeIntere(const std::string& /*tabella*/) const { return false; }

    /// Holds one state of the archive for the statements up to `fineLettura`. Returns its version: a number
    /// that changes when another station changes the archive. Throws Guasto 3187 where the archive stays
    /// locked.
    virtual std::int64_t iniziaLettura() = 0;
    virtual void fineLettura() noexcept = 0;

    /// Locks a row against all other stations; waits a bounded time, then throws Guasto 3218. What is written
    /// until `sblocca` is one transaction. Locks nest: the transaction ends with the outermost.
    void blocca(const std::string& tabella, std::int64_t riga);
    /// Gives a lock back. The last one commits; where that fails the whole transaction is undone and Guasto
    /// thrown.
    void sblocca();
    /// True where a statement that ran into another station's change or lock is worth running again from its
    /// begin: it gave up what it held, and may find what it needs.
    [[nodiscard]] virtual bool siRipete() const { return false; }
    /// While true, a lock of another station is waited for but briefly: who asks for it gives way and begins
    /// anew. Nests: as many times false as true.
    virtual void cedevole(bool) {}
    /// Undoes the transaction and gives every lock back.
    void annulla() noexcept;
    /// A statement failed in such a way (a full disk) that SQLite has undone the transaction by itself.
    [[nodiscard]] bool perduta() const;

private:
    /// The statement that begins a transaction.
    [[nodiscard]] virtual const char* inizio() const = 0;
    /// Within the transaction; throws as `blocca` does.
    virtual void bloccaRiga(const std::string& /*tabella*/, std::int64_t /*riga*/) {}
    /// The transaction is at its end.
    virtual void rilascia() noexcept {}

    int blocchi_ = 0;
};

/// An engine that gives way for as long as this lives; none: nothing.
class Cedevole {
public:
    explicit Cedevole(Motore* motore) : motore_(motore) {
        if (motore_)
            motore_->cedevole(true);
    }
    ~Cedevole() {
        if (motore_)
            motore_->cedevole(false);
    }
    Cedevole(const Cedevole&) = delete;
    Cedevole& operator=(const Cedevole&) = delete;

private:
    Motore* motore_;
};

/// Opens an archive with the engine that its first bytes call for, whatever its name. `attesa`: the longest
/// wait for a lock of another station. Throws Guasto 3024 (no such file), 3044 (no such folder), 3051 (not to
/// be opened), 3343 (no archive, or one that no engine reads), 3045 (in use exclusively).
[[nodiscard]] std::unique_ptr<Motore> apriMotore(const std::filesystem::path& file,
                                                 std::chrono::milliseconds attesa);

} // namespace lumigrafo
