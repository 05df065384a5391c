#include "data/errori_dao.h"
#include "data/guasto_sqlite.h"

#include <sqlite3.h>
#include <string>

namespace lumigrafo {

namespace {

/// What follows the last ": " of SQLite's message: the name that it complains about.
std::string nomeIn(std::string_view messaggio) {
    const auto due = messaggio.rfind(": ");
    return std::string(due == messaggio.npos ? messaggio : messaggio.substr(due + 2));
}

int numeroBlocco(Operazione operazione) {
    switch (operazione) {
    case Operazione::Apertura:
        return dao::kInUso;
    case Operazione::Lettura:
    case Operazione::Criterio:
        return dao::kBloccatoLettura;
    case Operazione::Aggiornamento:
        return dao::kBloccatoAggiornamento;
    case Operazione::Inserimento:
        return dao::kBloccatoSalvataggio;
    }
    return dao::kRiservato;
}

constexpr std::string_view kSenzaTabella = "no such table: ";

/// SQLite tells a faulty statement by its message alone.
Guasto erroreDiIstruzione(std::string_view messaggio, Operazione operazione, std::string_view testo) {
    const bool criterio = operazione == Operazione::Criterio;
    if (messaggio.starts_with(kSenzaTabella))
        return erroreDao(dao::kTabellaMancante, nomeIn(messaggio));
    if (messaggio.starts_with("no such column: "))
        return criterio ? erroreDao(dao::kCampoNelCriterio, nomeIn(messaggio)) : erroreDao(dao::kParametri);
    constexpr std::string_view kSenzaColonna = " has no column named ";
    if (const auto p = messaggio.find(kSenzaColonna); p != messaggio.npos)
        return erroreDao(dao::kCampoInInsert, messaggio.substr(p + kSenzaColonna.size()));
    if (messaggio.starts_with("cannot modify "))
        return erroreDao(dao::kSolaLettura);
    if (messaggio.find("syntax error") != messaggio.npos || messaggio == "incomplete input" ||
        messaggio.starts_with("unrecognized token"))
        return erroreDao(criterio ? dao::kSintassiCriterio : dao::kSintassiQuery, testo);
    return erroreDao(dao::kRiservato, messaggio);
}

Guasto erroreDiVincolo(int esteso, std::string_view messaggio) {
    switch (esteso) {
    case SQLITE_CONSTRAINT_UNIQUE:
    case SQLITE_CONSTRAINT_PRIMARYKEY:
    case SQLITE_CONSTRAINT_ROWID:
        return erroreDao(dao::kDuplicato);
    case SQLITE_CONSTRAINT_NOTNULL:
        return erroreDao(dao::kCampoRichiesto, nomeIn(messaggio));
    default:
        return erroreDao(dao::kConvalida);
    }
}

} // namespace

std::optional<std::string> tabellaMancante(sqlite3* connessione) {
    const std::string_view messaggio = sqlite3_errmsg(connessione);
    if (!messaggio.starts_with(kSenzaTabella))
        return std::nullopt;
    return std::string(messaggio.substr(kSenzaTabella.size()));
}

Guasto erroreSqlite(sqlite3* connessione, Operazione operazione, std::string_view testo) {
    const int codice = sqlite3_errcode(connessione);
    const std::string messaggio = sqlite3_errmsg(connessione);
    if (const auto guasto = guastoDaSqlite(messaggio))
        return guasto->numero() == dao::kBloccatoAggiornamento
                   ? Guasto(numeroBlocco(operazione), guasto->descrizione())
                   : *guasto;
    const char* file = sqlite3_db_filename(connessione, "main");
    const std::string nome = file ? file : "";
    switch (codice & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return erroreDao(numeroBlocco(operazione), nome);
    case SQLITE_CONSTRAINT:
        return erroreDiVincolo(sqlite3_extended_errcode(connessione), messaggio);
    case SQLITE_READONLY:
    case SQLITE_AUTH:
        return erroreDao(dao::kSolaLettura);
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
        return erroreDao(dao::kPermesso, nome);
    case SQLITE_NOTADB:
        return erroreDao(dao::kFormato, nome);
    case SQLITE_CORRUPT:
        return erroreDao(dao::kDanneggiato, nome);
    case SQLITE_IOERR:
        return erroreDao(dao::kDisco);
    case SQLITE_FULL:
        return erroreDao(dao::kDiscoPieno);
    case SQLITE_ERROR:
        return erroreDiIstruzione(messaggio, operazione, testo);
    default:
        return erroreDao(dao::kRiservato, std::to_string(codice) + ": " + messaggio);
    }
}

} // namespace lumigrafo
