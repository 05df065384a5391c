// What SQLite calls. No exception may leave one of these functions.
#include "data/modulo_access.h"

#include "data/cursore_access.h"
#include "data/errori_dao.h"
#include "data/guasto_sqlite.h"
#include "data/lessico.h"
#include "data/nullo_voluto.h"
#include "data/tabella_virtuale.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <new>

namespace lumigrafo {

namespace {

using jet::Colonna;
using jet::Tipo;

char* copia(const std::string& testo) {
    return sqlite3_mprintf("%s", testo.c_str());
}

/// Runs a step of a table; a failure becomes its message.
template <typename Passo>
int protetto(sqlite3_vtab* t, Passo&& passo) noexcept {
    try {
        passo();
        return SQLITE_OK;
    } catch (const Guasto& guasto) {
        sqlite3_free(t->zErrMsg);
        t->zErrMsg = copia(guastoPerSqlite(guasto));
        return SQLITE_ERROR;
    } catch (const std::exception&) { // no memory
        return SQLITE_NOMEM;
    }
}

/// As the fields' types are told from it.
std::string dichiarazione(const Colonna& c) {
    const auto testo = [](std::size_t n) {
        return "TEXT(" + std::to_string(n) + ") COLLATE " + kConfrontoAccess;
    };
    switch (c.tipo) {
    case Tipo::Booleano:
        return "YESNO";
    case Tipo::Byte:
        return "BYTE";
    case Tipo::Intero:
        return "SMALLINT";
    case Tipo::Lungo:
        return c.contatore ? "COUNTER INTEGER" : "INTEGER";
    case Tipo::Valuta:
        return "CURRENCY";
    case Tipo::Singolo:
        return "SINGLE";
    case Tipo::Doppio:
    case Tipo::Decimale:
        return "DOUBLE";
    case Tipo::Data:
        return "DATE";
    case Tipo::Testo:
        return testo(c.lunghezza / 2u);
    case Tipo::Guid:
        return testo(38);
    case Tipo::Memo:
        return std::string("MEMO TEXT COLLATE ") + kConfrontoAccess;
    default:
        return "BLOB";
    }
}

std::string schema(const jet::Definizione& d) {
    std::string sql;
    for (const Colonna& c : d.colonne)
        sql += (sql.empty() ? "CREATE TABLE x(" : ", ") + lessico::traVirgolette(c.nome) + ' ' +
               dichiarazione(c);
    if (!d.cerca(RigaIntera::kColonna)) // Access takes no such name, a file may have it all the same
        sql += ", " + lessico::traVirgolette(RigaIntera::kColonna) + ' ' + RigaIntera::kTipo + " HIDDEN";
    return sql + ')';
}

TabellaAccess& di(sqlite3_vtab* t) {
    return *static_cast<TabellaAccess*>(t);
}
CursoreAccess& di(sqlite3_vtab_cursor* c) {
    return *static_cast<CursoreAccess*>(c);
}

/// SQLite keeps a table's context with the module alone: a table finds it through this.
struct Tabella : TabellaAccess {
    Tabella(TabelleVirtuali& tutte_, std::uint32_t definizione)
        : TabellaAccess(tutte_.pagine(), definizione), tutte(tutte_) {}
    TabelleVirtuali& tutte;
    RegoleAccess regole;
};

TabelleVirtuali& tutte(sqlite3_vtab* t) {
    return static_cast<Tabella*>(t)->tutte;
}
const RegoleAccess& regole(sqlite3_vtab* t) {
    return static_cast<Tabella*>(t)->regole;
}

int connetti(sqlite3* db, void* contesto, int, const char* const* argomenti, sqlite3_vtab** tabella,
             char** errore) noexcept {
    try {
        std::uint32_t definizione = 0;
        std::from_chars(argomenti[3], argomenti[3] + std::strlen(argomenti[3]), definizione);
        auto& tutte = *static_cast<TabelleVirtuali*>(contesto);
        auto t = tutte.pagine().coerente([&] {
            auto nuova = std::make_unique<Tabella>(tutte, definizione);
            nuova->regole = tutte.regoleDi(nuova->tabella.definizione());
            return nuova;
        });
        if (const int esito = sqlite3_declare_vtab(db, schema(t->tabella.definizione()).c_str());
            esito != SQLITE_OK)
            return esito;
        *tabella = t.release();
        return SQLITE_OK;
    } catch (const Guasto& guasto) {
        *errore = copia(guastoPerSqlite(guasto));
        return SQLITE_ERROR;
    } catch (const std::exception&) {
        return SQLITE_NOMEM;
    }
}

int lascia(sqlite3_vtab* t) noexcept {
    delete static_cast<Tabella*>(t);
    return SQLITE_OK;
}

int percorso(sqlite3_vtab* t, sqlite3_index_info* info) noexcept {
    return protetto(t, [&] { Percorso::scegli(di(t), *info); });
}

int apri(sqlite3_vtab*, sqlite3_vtab_cursor** c) noexcept {
    auto* nuovo = new (std::nothrow) CursoreAccess;
    *c = nuovo;
    return nuovo ? SQLITE_OK : SQLITE_NOMEM;
}

int chiudi(sqlite3_vtab_cursor* c) noexcept {
    delete &di(c);
    return SQLITE_OK;
}

int cerca(sqlite3_vtab_cursor* c, int numero, const char* ordine, int quanti,
          sqlite3_value** valori) noexcept {
    return protetto(c->pVtab, [&] {
        CursoreAccess& cursore = di(c);
        TabellaAccess& t = cursore.tabella();
        cursore.righe =
            std::make_shared<RigheTrovate>(Percorso::cerca(t, numero, ordine, {valori, valori + quanti}));
        t.viste = cursore.righe;
        cursore.definizione = &t.tabella.definizione();
        cursore.vaiA(0);
    });
}

int avanza(sqlite3_vtab_cursor* c) noexcept {
    return protetto(c->pVtab, [&] { di(c).vaiA(di(c).posto + 1); });
}

int finito(sqlite3_vtab_cursor* c) noexcept {
    return di(c).finito() ? 1 : 0;
}

int colonna(sqlite3_vtab_cursor* c, sqlite3_context* contesto, int i) noexcept {
    if (sqlite3_vtab_nochange(contesto))
        return SQLITE_OK; // an update leaves this column alone
    return protetto(c->pVtab, [&] { di(c).colonna(contesto, static_cast<std::size_t>(i)); });
}

int chiave(sqlite3_vtab_cursor* c, sqlite3_int64* valore) noexcept {
    const CursoreAccess& cursore = di(c);
    *valore = TabelleVirtuali::chiave((*cursore.righe)[cursore.posto].posizione);
    return SQLITE_OK;
}

/// The row as the statement's own search found it.
std::optional<jet::Vista> vista(const TabellaAccess& t, jet::Posizione p) {
    if (!t.viste)
        return std::nullopt;
    // A walk over the table finds the rows in order, a search by index may not.
    auto r = std::lower_bound(t.viste->begin(), t.viste->end(), p,
                              [](const jet::RigaTrovata& a, jet::Posizione b) { return a.posizione < b; });
    if (r == t.viste->end() || r->posizione != p)
        r = std::find_if(t.viste->begin(), t.viste->end(), [&](const auto& a) { return a.posizione == p; });
    return r == t.viste->end() ? std::nullopt : std::optional(r->riga.byte);
}

jet::Tabella::Modifiche modifiche(const jet::Definizione& d, const RegoleAccess& regole,
                                  sqlite3_value** valori) {
    jet::Tabella::Modifiche m;
    for (std::size_t i = 0; i < d.colonne.size(); ++i) {
        if (sqlite3_value_nochange(valori[i]))
            continue;
        m.emplace_back(i, byteDi(d.colonne[i], valori[i]));
        regole.verifica(i, m.back().second);
    }
    return m;
}

/// SQLite gives a null for a column that the statement leaves out too; one that is meant says so where a
/// parameter brings it.
jet::Campi nuova(const jet::Definizione& d, const RegoleAccess& regole, sqlite3_value** valori) {
    jet::Campi campi;
    for (std::size_t i = 0; i < d.colonne.size(); ++i) {
        const bool manca = sqlite3_value_type(valori[i]) == SQLITE_NULL && !nulloVoluto(valori[i]);
        campi.push_back(manca ? regole.predefinito(i) : byteDi(d.colonne[i], valori[i]));
        regole.verifica(i, campi.back());
    }
    return campi;
}

int scrivi(sqlite3_vtab* vt, int quanti, sqlite3_value** valori, sqlite3_int64* chiaveNuova) noexcept {
    return protetto(vt, [&] {
        TabellaAccess& t = di(vt);
        const jet::Definizione& d = t.tabella.definizione();
        if (quanti > 1 && sqlite3_value_type(valori[0]) == SQLITE_NULL) {
            *chiaveNuova = TabelleVirtuali::chiave(t.tabella.inserisci(nuova(d, regole(vt), valori + 2)));
            return;
        }
        const jet::Posizione p = TabelleVirtuali::posizione(sqlite3_value_int64(valori[0]));
        if (quanti == 1)
            t.tabella.elimina(p, vista(t, p));
        else
            t.tabella.aggiorna(p, modifiche(d, regole(vt), valori + 2), vista(t, p));
    });
}

int inizia(sqlite3_vtab*) noexcept {
    return SQLITE_OK;
}

/// All tables are in one transaction: the first to be asked writes it.
int registra(sqlite3_vtab* t) noexcept {
    return protetto(t, [&] { tutte(t).pagine().registra(); });
}

int fatto(sqlite3_vtab* t) noexcept {
    tutte(t).fineTransazione();
    return SQLITE_OK;
}

int annulla(sqlite3_vtab* t) noexcept {
    tutte(t).pagine().abbandona();
    return fatto(t);
}

int rinomina(sqlite3_vtab*, const char*) noexcept {
    return SQLITE_READONLY;
}

int punto(sqlite3_vtab* t, int n) noexcept {
    return protetto(t, [&] { tutte(t).segna(n); });
}

int lasciaPunto(sqlite3_vtab* t, int n) noexcept {
    tutte(t).dimentica(n);
    return SQLITE_OK;
}

int tornaAlPunto(sqlite3_vtab* t, int n) noexcept {
    return protetto(t, [&] { tutte(t).tornaA(n); });
}

sqlite3_module modulo() {
    sqlite3_module m{};
    m.iVersion = 2;
    m.xCreate = m.xConnect = connetti;
    m.xBestIndex = percorso;
    m.xDisconnect = m.xDestroy = lascia;
    m.xOpen = apri;
    m.xClose = chiudi;
    m.xFilter = cerca;
    m.xNext = avanza;
    m.xEof = finito;
    m.xColumn = colonna;
    m.xRowid = chiave;
    m.xUpdate = scrivi;
    m.xBegin = inizia;
    m.xSync = registra;
    m.xCommit = fatto;
    m.xRollback = annulla;
    m.xRename = rinomina;
    m.xSavepoint = punto;
    m.xRelease = lasciaPunto;
    m.xRollbackTo = tornaAlPunto;
    return m;
}

} // namespace

const sqlite3_module* moduloAccess() {
    static const sqlite3_module m = modulo();
    return &m;
}

} // namespace lumigrafo
