#pragma once

#include "data/dao.h"
#include "platform/avvisi.h"
#include "platform/file.h"
#include "platform/orologio.h"
#include "platform/sistema.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

namespace lumigrafo {

/// What every record set of the program works with.
struct ContestoDati {
    Database& Db;
    std::string PathDB; ///< the archive's folder, where the lock files lie; UTF-8
    Orologio& orologio;
    Avvisi& avvisi;
    Uscita& uscita;
    Sistema& sistema;
};

/// One query, row by row. A failure of the archive in Apri, Start, LeggiNext or CancellazioneRecordSet shows
/// a critical box titled "clsRecordset" and ends the program; missing data is a code that the caller tests.
///
/// With `Esclusivo` it holds a lock among stations: a file `<Sorgente>.txt` in the archive's folder, held
/// open from Apri to Chiudi, and beside it `user_<Sorgente>.txt` with the holder's name, which is left lying.
class clsRecordset {
public:
    explicit clsRecordset(const ContestoDati& contesto) : c_(contesto) {}

    /// Opens a table or an SQL text and stands on its first row. `Errore` is then 0, 10 for an empty set, or
    /// 93 where the lock was refused and nothing was opened. `Chiamante` appears in messages. `Riservato`
    /// changes nothing. `Attendi`: wait for the lock rather than be refused; once a second for "NUMERO", else
    /// without a pause.
    void Apri(const std::string& Chiamante, bool Riservato, const std::string& Sorgente, bool Esclusivo,
              bool Attendi);
    /// Closes the set and drops the lock; fails at nothing. Apri may follow.
    void Chiudi();
    /// Stands on the first row that meets one condition, or two where `Campo2` isn't empty, and returns true;
    /// else `Errore` is 23. Text values come quoted.
    bool Start(const std::string& chiamante, const std::string& Campo1, const std::string& Operatore1,
               const std::string& Valore1, const std::string& Campo2 = {}, const std::string& Operatore2 = {},
               const std::string& Valore2 = {});
    /// The next row; behind the last one `Errore` becomes 10. Success leaves `Errore` as it was.
    void LeggiNext(const std::string& chiamante);
    /// 0, 10 (no rows, or behind the last), 23 (not found), 93 (lock refused).
    [[nodiscard]] std::int16_t Errore() const { return CodiceErrore_; }
    /// The open set, for fields, Edit, AddNew, Update and Delete. Throws Guasto 91 where none is open.
    [[nodiscard]] Recordset& ilRecordset();
    /// The DAO type code of a field. Throws Guasto 3265 where there is none.
    [[nodiscard]] std::int32_t TipoCampo(const std::string& nome);
    /// The field's name as a number: throws Guasto 13 for any name that isn't numeric.
    [[nodiscard]] std::int32_t NomeCampo(const std::string& nome);
    [[nodiscard]] std::int32_t QuantiCampi();
    void AzzeraErrore() { CodiceErrore_ = 0; }
    /// Deletes every row of the set.
    void CancellazioneRecordSet(const std::string& chiamante);
    /// True for "SI" and for a true value.
    [[nodiscard]] static bool SiToBool(const Valore& testo);
    /// "SI" or the empty text.
    [[nodiscard]] static std::string BoolToSi(bool valore);

private:
    /// True: the lock was refused.
    bool BloccaSblocca(const std::string& Nome, bool Attendi);
    /// The number of the failure to take the lock file: 0, or 70 where another station holds it. Any other
    /// failure ends the program.
    int prendiFileBlocco(const std::string& Nome);
    static void AggiornaRecordset(Recordset& rs);
    [[nodiscard]] std::filesystem::path nellArchivio(const std::string& file) const;
    /// Shows the failure and ends the program: it doesn't come back.
    void termina(const std::string& titolo, const std::string& testo, const Guasto& guasto);

    ContestoDati c_;
    std::unique_ptr<Recordset> rs_;
    std::int16_t CodiceErrore_ = 0;
    std::string Sorgente_;
    std::string Chiamante_;
    std::optional<FileEsclusivo> FileBlocco_;
};

} // namespace lumigrafo
