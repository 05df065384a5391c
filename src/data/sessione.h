#pragma once

#include "data/dialetto.h"
#include "data/errori_dao.h"
#include "data/motore.h"
#include "data/righe.h"
#include "data/valore.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace lumigrafo {

class Recordset;

/// A prepared statement in use; given back, it is reset for the next user.
class Istruzione {
public:
    Istruzione(std::shared_ptr<sqlite3_stmt> stmt, Operazione operazione)
        : stmt_(std::move(stmt)), op_(operazione) {}
    ~Istruzione();
    Istruzione(Istruzione&&) = default;
    Istruzione& operator=(Istruzione&&) = delete;

    [[nodiscard]] sqlite3_stmt* stmt() const { return stmt_.get(); }
    /// Parameters count from 1.
    void lega(int parametro, const Valore& valore);
    /// On to the next row; false behind the last. Throws Guasto.
    bool passo();

private:
    std::shared_ptr<sqlite3_stmt> stmt_;
    Operazione op_;
};

/// One open archive: what a Database and its record sets share. Closing it closes them all.
class Sessione {
public:
    Sessione(const std::filesystem::path& file, std::chrono::milliseconds attesa);
    ~Sessione();
    Sessione(const Sessione&) = delete;
    Sessione& operator=(const Sessione&) = delete;

    void chiudi();
    [[nodiscard]] bool aperta() const { return motore_ != nullptr; }
    /// Throws Guasto 3420 once the session is closed.
    [[nodiscard]] Motore& motore() const;
    [[nodiscard]] const Dialetto& dialetto() const { return dialetto_; }

    /// A statement in SQLite's own dialect. The latest ones are kept prepared. A failure shows it as
    /// `comeScritta`, where that is given.
    [[nodiscard]] Istruzione prepara(const std::string& sql, Operazione operazione,
                                     std::string_view comeScritta = {});
    /// Runs a change. Where its failure has cost the transaction, all of that is undone here too.
    void cambia(const std::function<void()>& cambio);
    /// The same, again and again for the whole wait where the engine says so and another station was in
    /// the way.
    void ripetendo(const std::function<void()>& cambio);
    /// Runs a statement that changes rows; returns how many.
    std::int32_t esegui(std::string_view sql);
    /// Changes of this session's own; with the engine's version it tells whether rows read before still
    /// stand.
    [[nodiscard]] std::int64_t modifiche() const { return modifiche_; }
    void modificato() { ++modifiche_; }

    /// Locks a row until `sbloccaRiga`. Throws Guasto 3188 where another record set of this session holds it.
    void bloccaRiga(const std::string& tabella, std::int64_t riga);
    /// Throws Guasto where the transaction, of which this was the last lock, can't be written.
    void sbloccaRiga(const std::string& tabella, std::int64_t riga);
    /// Begins a transaction; they nest. Throws Guasto 3218.
    void inizia();
    /// Ends the innermost; without one, nothing happens. Throws as `sbloccaRiga` does.
    void conferma();
    /// Undoes the transaction, with all its locks: the sets that were changing a row no longer do.
    void annulla();

    /// Memory for rows. What a set gives back serves the next one, which is most often of the same size.
    [[nodiscard]] Righe prestaRighe() { return std::exchange(scorta_, Righe()); }
    void rendiRighe(Righe&& righe) { scorta_ = std::move(righe); }

    void iscrivi(Recordset& insieme) { insiemi_.push_back(&insieme); }
    void cancella(const Recordset& insieme) { std::erase(insiemi_, &insieme); }

private:
    using Riga = std::pair<std::string, std::int64_t>;
    using Pronta = std::pair<std::string, std::shared_ptr<sqlite3_stmt>>;

    void sblocca();
    void perdiBlocchi();
    [[nodiscard]] std::shared_ptr<sqlite3_stmt> compila(const std::string& sql, Operazione operazione,
                                                        std::string_view comeScritta) const;

    std::chrono::milliseconds attesa_;
    std::unique_ptr<Motore> motore_;
    Dialetto dialetto_;
    std::vector<Pronta> pronte_; ///< the latest used first
    int transazioni_ = 0;        ///< begun and not ended, beside the locked rows
    std::vector<Riga> bloccate_;
    std::vector<Recordset*> insiemi_;
    Righe scorta_;
    std::int64_t modifiche_ = 0;
};

} // namespace lumigrafo
