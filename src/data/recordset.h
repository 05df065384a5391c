#pragma once

#include "data/campo.h"
#include "data/dialetto.h"
#include "data/righe.h"
#include "data/sessione.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace lumigrafo {

/// A dynaset: the rows of a table or statement as they were when it was opened or last asked anew. A row's
/// values are read again by FindFirst, Edit and Update. Rows of one table can be changed; sums and the like
/// can only be read.
///
/// Every operation throws Guasto: 3420 after Close of this set or of its Database, 3021 without a current
/// row.
class Recordset {
public:
    /// A table's name or an SQL text. Stands on the first row.
    Recordset(std::shared_ptr<Sessione> sessione, const std::string& sorgente);
    ~Recordset();
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;

    void MoveFirst();
    void MoveLast();
    /// Behind the last row Eof is true. Throws Guasto 3021 if it was already.
    void MoveNext();
    /// Reads the rows anew if the archive has changed, gives up an Edit or AddNew, and stands on the first
    /// row.
    void Requery();
    /// Stands on the first row that meets the condition, with the row's present values. Without one, NoMatch
    /// is true and the current row stays. Throws Guasto 3077 for a faulty condition, 3070 for an unknown
    /// column.
    void FindFirst(const std::string& criterio);
    [[nodiscard]] bool NoMatch() const { return noMatch_; }
    [[nodiscard]] std::int32_t RecordCount() const;
    [[nodiscard]] bool Eof() const;

    /// True, as it begins: Edit locks the row until Update. False: Update fails with 3197 if another station
    /// has changed the row since Edit.
    [[nodiscard]] bool LockEdits() const { return bloccaSubito_; }
    void LockEdits(bool subito) { bloccaSubito_ = subito; }

    /// Makes the current row, read afresh, ready for changes. Throws Guasto 3167 if another station has
    /// deleted it, 3218 if it stays locked, 3188 if another set of this program is changing it, 3027 if it
    /// can't be changed.
    void Edit();
    /// Begins a new row; columns that aren't set take the table's defaults. The current row stays current.
    void AddNew();
    /// Writes what was set, and nothing else of the row. Throws Guasto 3020 outside Edit and AddNew, 3022 for
    /// a duplicate key, 3186 or 3218 for a lock. A refused value leaves the Edit open; a failed commit ends
    /// it.
    void Update();
    /// Outside Edit and AddNew it does nothing.
    void CancelUpdate();
    /// Deletes the current row, which stays current as a deleted one until the next move. Throws Guasto 3167
    /// if it is already gone.
    void Delete();
    /// Gives up an Edit or AddNew. A closed set can be closed again.
    void Close() noexcept;

    [[nodiscard]] lumigrafo::Fields& Fields();

    /// The session's transaction was undone: an Edit that held its row is over.
    void perdiBlocco() noexcept;

private:
    friend class Field;
    enum class Stato { Fermo, Modifica, Nuovo };

    [[nodiscard]] Valore valore(std::size_t campo) const;
    [[nodiscard]] Valore valoreInModifica(std::size_t campo) const;
    void scrivi(std::size_t campo, const Valore& valore);

    void verificaAperto() const;
    void verificaModificabile() const;
    /// The current row. Throws Guasto 3021 or 3167.
    [[nodiscard]] std::size_t corrente() const;
    [[nodiscard]] Guasto senzaCorrente() const;
    void allaPrimaViva(std::size_t da);
    void definisciCampi(sqlite3_stmt* stmt);
    void carica();
    [[nodiscard]] bool ancoraValide(std::int64_t versione) const;
    [[nodiscard]] std::vector<std::int64_t> chiaviDi(const std::string& criterio);
    [[nodiscard]] std::optional<std::size_t> cercaPosizione(const std::string& criterio);
    /// Reads a row again; false if it is gone.
    bool rileggi(std::size_t riga);
    void aggiungiLetta(std::int64_t chiave);
    [[nodiscard]] Istruzione preparaRiga(std::int64_t chiave);
    void bloccaERileggi(std::size_t riga);
    void scriviModifica();
    void scriviNuovo();
    void sblocca();
    void lascia() noexcept;

    std::shared_ptr<Sessione> sessione_;
    const std::string sorgente_;
    std::string sql_;    ///< with the row's key behind the columns where rows can be changed
    std::string intere_; ///< the same with each row in one piece; empty where the table doesn't give it so
    std::optional<Selezione> selezione_;
    lumigrafo::Fields campi_;
    Righe righe_;
    std::int64_t versione_ = 0, modifiche_ = 0; ///< of the archive when the rows were read
    std::size_t posizione_ = 0;
    bool aperto_ = true;
    bool noMatch_ = false;
    bool bloccaSubito_ = true;

    Stato stato_ = Stato::Fermo;
    std::optional<std::int64_t> bloccata_; ///< key of the row whose lock this set holds
    std::size_t inModifica_ = 0;
    std::vector<Valore> allEdit_; ///< the row as Edit found it, without LockEdits
    std::vector<std::optional<Valore>> assegnati_;
};

// In the header, since a reader of a whole table calls them for each field of each row.
inline std::size_t Recordset::corrente() const {
    if (!aperto_ || posizione_ >= righe_.quante() || righe_.eliminata(posizione_))
        throw senzaCorrente();
    return posizione_;
}

inline Valore Recordset::valore(std::size_t campo) const {
    return stato_ == Stato::Fermo ? righe_.valore(corrente(), campo) : valoreInModifica(campo);
}

inline Valore Field::Value() const {
    return insieme_->valore(indice_);
}

} // namespace lumigrafo
