#include "data/errori_dao.h"

#include <algorithm>
#include <sqlite3.h>
#include <string>

namespace lumigrafo {

namespace {

struct Descrizione {
    int numero;
    const char* testo; ///< '|' stands for the name
};

// clang-format off
constexpr Descrizione kDescrizioni[] = {
    {dao::kUsoDiNull, "Utilizzo non valido di Null"},
    {dao::kArgomento, "Argomento non valido."},
    {dao::kRiservato, "Errore riservato (|); nessun messaggio disponibile per questo errore."},
    {dao::kNienteModifica, "Update o CancelUpdate senza AddNew o Edit."},
    {dao::kNessunRecord, "Nessun record corrente."},
    {dao::kDuplicato, "Le modifiche richieste alla tabella non sono state apportate: creerebbero valori duplicati nell'indice, nella chiave primaria o nella relazione."},
    {dao::kFileMancante, "Impossibile trovare il file '|'."},
    {dao::kDiscoPieno, "Spazio su disco insufficiente."},
    {dao::kSolaLettura, "Impossibile aggiornare. Database o oggetto di sola lettura."},
    {dao::kDisco, "Errore di disco o di rete."},
    {dao::kPercorso, "'|' non è un percorso valido. Assicurarsi che il nome del percorso sia stato digitato correttamente e di essere connessi al server in cui si trova il file."},
    {dao::kInUso, "Impossibile utilizzare '|'; file già in uso."},
    {dao::kDanneggiato, "Impossibile aprire il database '|'. Potrebbe non essere un database riconosciuto dall'applicazione oppure il file potrebbe essere danneggiato."},
    {dao::kPermesso, "Impossibile aprire il file '|'. È già aperto in modo esclusivo da un altro utente oppure è necessaria un'autorizzazione per visualizzarne i dati."},
    {dao::kParametri, "Parametri insufficienti. Previsto 1."},
    {dao::kQueryDiSelezione, "Impossibile eseguire una query di selezione."},
    {dao::kCampoNelCriterio, "Impossibile riconoscere '|' come nome di campo o espressione valida."},
    {dao::kSintassiQuery, "Errore di sintassi nell'espressione della query '|'."},
    {dao::kSintassiCriterio, "Errore di sintassi (operatore mancante) nell'espressione."},
    {dao::kTabellaMancante, "Impossibile trovare la tabella o query di input '|'. Assicurarsi che esista e che il nome sia stato digitato correttamente."},
    {dao::kCampoInInsert, "L'istruzione INSERT INTO contiene il nome di campo sconosciuto '|'. Assicurarsi che il nome sia stato digitato correttamente, quindi riprovare."},
    {dao::kDopoLaFine, "Trovati caratteri dopo la fine dell'istruzione SQL."},
    {dao::kCampoCorto, "Le dimensioni del campo sono insufficienti per la quantità di dati che si è cercato di aggiungere. Provare a inserire o incollare meno dati."},
    {dao::kRecordEliminato, "Record eliminato."},
    {dao::kBloccatoSalvataggio, "Impossibile salvare; attualmente bloccato da un'altra stazione."},
    {dao::kBloccatoLettura, "Impossibile leggere; attualmente bloccato da un'altra stazione."},
    {dao::kBloccatoQui, "Impossibile aggiornare; attualmente bloccato da un'altra sessione di questo computer."},
    {dao::kCambiatoDaAltri, "Processo interrotto: un altro utente sta tentando di modificare contemporaneamente gli stessi dati."},
    {dao::kEsisteGia, "Il database '|' esiste già."},
    {dao::kBloccatoAggiornamento, "Impossibile aggiornare; attualmente bloccato."},
    {dao::kElementoMancante, "Impossibile trovare l'elemento nell'insieme."},
    {dao::kCampoRichiesto, "Il campo '|' non può contenere un valore Null. Immettere un valore nel campo."},
    {dao::kConvalida, "Uno o più valori non sono ammessi dalla regola di convalida della tabella."},
    {dao::kFormato, "Formato di database '|' non riconosciuto."},
    {dao::kOggettoNonValido, "Oggetto non valido o non più impostato."},
    {dao::kConversione, "Errore di conversione del tipo di dati."},
};
// clang-format on

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

/// SQLite tells a faulty statement by its message alone.
Guasto erroreDiIstruzione(std::string_view messaggio, Operazione operazione, std::string_view testo) {
    const bool criterio = operazione == Operazione::Criterio;
    if (messaggio.starts_with("no such table: "))
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

Guasto erroreDao(int numero, std::string_view nome) {
    const auto* d = std::find_if(std::begin(kDescrizioni), std::end(kDescrizioni),
                                 [&](const Descrizione& x) { return x.numero == numero; });
    std::string testo = d == std::end(kDescrizioni) ? std::string() : d->testo;
    if (const auto vuoto = testo.find('|'); vuoto != testo.npos)
        testo.replace(vuoto, 1, nome);
    return {numero, std::move(testo)};
}

Guasto erroreSqlite(sqlite3* connessione, Operazione operazione, std::string_view testo) {
    const int codice = sqlite3_errcode(connessione);
    const std::string messaggio = sqlite3_errmsg(connessione);
    const char* file = sqlite3_db_filename(connessione, "main");
    const std::string nome = file ? file : "";
    switch (codice & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return erroreDao(numeroBlocco(operazione), nome);
    case SQLITE_CONSTRAINT:
        return erroreDiVincolo(sqlite3_extended_errcode(connessione), messaggio);
    case SQLITE_READONLY:
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
