#include "data/errori_dao.h"

#include <algorithm>
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
    {dao::kRigaLunga, "Il record è troppo grande."},
    {dao::kDanneggiato, "Impossibile aprire il database '|'. Potrebbe non essere un database riconosciuto dall'applicazione oppure il file potrebbe essere danneggiato."},
    {dao::kBlocchi, "Impossibile bloccare il file '|': la cartella non permette i blocchi fra stazioni. Se è una condivisione va montata con i blocchi (cifs senza 'nobrl' e 'nolock', nfs senza 'nolock'); altrimenti l'archivio va spostato su un disco o una condivisione che li permette."},
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
    {dao::kTroppiUtenti, "Troppi utenti attivi."},
    {dao::kElementoMancante, "Impossibile trovare l'elemento nell'insieme."},
    {dao::kCampoRichiesto, "Il campo '|' non può contenere un valore Null. Immettere un valore nel campo."},
    {dao::kConvalida, "Uno o più valori non sono ammessi dalla regola di convalida della tabella."},
    {dao::kFormato, "Formato di database '|' non riconosciuto."},
    {dao::kOggettoNonValido, "Oggetto non valido o non più impostato."},
    {dao::kConversione, "Errore di conversione del tipo di dati."},
};
// clang-format on

} // namespace

Guasto erroreDao(int numero, std::string_view nome) {
    const auto* d = std::find_if(std::begin(kDescrizioni), std::end(kDescrizioni),
                                 [&](const Descrizione& x) { return x.numero == numero; });
    std::string testo = d == std::end(kDescrizioni) ? std::string() : d->testo;
    if (const auto vuoto = testo.find('|'); vuoto != testo.npos)
        testo.replace(vuoto, 1, nome);
    return {numero, std::move(testo)};
}

} // namespace lumigrafo
