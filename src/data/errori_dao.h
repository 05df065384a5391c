#pragma once

#include "platform/guasto.h"

#include <optional>
#include <string>
#include <string_view>

struct sqlite3;

namespace lumigrafo {

/// The constants that every user of an archive shares: field types, options, and the numbers of an archive's
/// failures.
namespace dao {

inline constexpr int dbBoolean = 1; ///< Yes/No: -1 or 0
inline constexpr int dbByte = 2;
inline constexpr int dbInteger = 3; ///< 16 bits
inline constexpr int dbLong = 4;    ///< 32 bits
inline constexpr int dbCurrency = 5;
inline constexpr int dbSingle = 6;
inline constexpr int dbDouble = 7;
inline constexpr int dbDate = 8;
inline constexpr int dbText = 10;
inline constexpr int dbLongBinary = 11;
inline constexpr int dbMemo = 12;

inline constexpr int dbOpenDynaset = 2;
inline constexpr int dbRefreshCache = 8;

inline constexpr int kUsoDiNull = 94;
inline constexpr int kRiservato = 3000;
inline constexpr int kArgomento = 3001;
inline constexpr int kNienteModifica = 3020;
inline constexpr int kNessunRecord = 3021;
inline constexpr int kDuplicato = 3022;
inline constexpr int kFileMancante = 3024;
inline constexpr int kDiscoPieno = 3026;
inline constexpr int kSolaLettura = 3027;
inline constexpr int kDisco = 3043;
inline constexpr int kPercorso = 3044;
inline constexpr int kPassword = 3031;
inline constexpr int kInUso = 3045;
inline constexpr int kRigaLunga = 3047;
inline constexpr int kDanneggiato = 3049;
inline constexpr int kBlocchi = 3050;
inline constexpr int kPermesso = 3051;
inline constexpr int kParametri = 3061;
inline constexpr int kQueryDiSelezione = 3065;
inline constexpr int kCampoNelCriterio = 3070;
inline constexpr int kSintassiQuery = 3075;
inline constexpr int kSintassiCriterio = 3077;
inline constexpr int kTabellaMancante = 3078;
inline constexpr int kCampoInInsert = 3127;
inline constexpr int kDopoLaFine = 3142;
inline constexpr int kCampoCorto = 3163;
inline constexpr int kRecordEliminato = 3167;
inline constexpr int kBloccatoSalvataggio = 3186;
inline constexpr int kBloccatoLettura = 3187;
inline constexpr int kBloccatoQui = 3188;
inline constexpr int kCambiatoDaAltri = 3197;
inline constexpr int kEsisteGia = 3204;
inline constexpr int kBloccatoAggiornamento = 3218;
inline constexpr int kTroppiUtenti = 3239;
inline constexpr int kElementoMancante = 3265;
inline constexpr int kCampoRichiesto = 3314;
inline constexpr int kConvalida = 3317;
inline constexpr int kFormato = 3343;
inline constexpr int kOggettoNonValido = 3420;
inline constexpr int kConversione = 3421;

} // namespace dao

/// The failure with that number and its description in Italian; `nome` (a file, a table, a field, a query)
/// fills the description's gap where it has one.
[[nodiscard]] Guasto erroreDao(int numero, std::string_view nome = {});

/// What was going on when SQLite failed: the same result code has another number for a reader and a writer.
enum class Operazione { Apertura, Lettura, Criterio, Aggiornamento, Inserimento };

/// The table that SQLite's last result on this connection missed; nothing for other results.
[[nodiscard]] std::optional<std::string> tabellaMancante(sqlite3* connessione);

/// The failure for SQLite's last result on this connection. `testo`: the statement or criterion, for the
/// descriptions that quote it.
[[nodiscard]] Guasto erroreSqlite(sqlite3* connessione, Operazione operazione, std::string_view testo = {});

} // namespace lumigrafo
