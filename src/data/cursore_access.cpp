#include "data/cursore_access.h"

#include "data/jet/albero.h"
#include "data/jet/chiave.h"
#include "data/jet/dato.h"
#include "data/jet/testo.h"
#include "data/jet/valore_lungo.h"
#include "data/ordine_access.h"
#include "data/tabella_virtuale.h"
#include "platform/conversioni.h"

#include <algorithm>
#include <cmath>

namespace lumigrafo {

namespace {

using jet::Colonna;
using jet::Tipo;

// The number of a search by index: which one, and how many of its columns the condition fixes.
constexpr int kColonneIndice = 16;

/// The constraint "column = value" on a column, or -1.
int uguaglianza(const sqlite3_index_info& info, int colonna) {
    for (int i = 0; i < info.nConstraint; ++i) {
        const auto& c = info.aConstraint[i];
        if (c.usable && c.iColumn == colonna && c.op == SQLITE_INDEX_CONSTRAINT_EQ)
            return i;
    }
    return -1;
}

struct Scelta {
    int indice = -1;
    std::vector<int> vincoli;
    double righe = 0;
};

Scelta misura(const jet::Definizione& d, std::size_t k, const sqlite3_index_info& info, double tutte) {
    const jet::Indice& indice = d.indici[k];
    Scelta s{static_cast<int>(k), {}, tutte};
    for (const jet::ColonnaIndice& ci : indice.colonne) {
        const int v = uguaglianza(info, static_cast<int>(ci.colonna));
        if (v < 0)
            break;
        s.vincoli.push_back(v);
        s.righe = s.righe / 20 + 1;
    }
    if (indice.unico && s.vincoli.size() == indice.colonne.size())
        s.righe = 1;
    return s;
}

/// The key's first bytes for the values of the condition; nothing where a value can't be in the column, or
/// can't be put into a key: then all rows are looked at, and SQLite compares.
std::optional<std::string> prefisso(const jet::Definizione& d, const jet::Indice& indice,
                                    const std::vector<sqlite3_value*>& valori) {
    try {
        std::string chiave;
        for (std::size_t i = 0; i < valori.size(); ++i) {
            const jet::ColonnaIndice& ci = indice.colonne[i];
            const Colonna& c = d.colonne[ci.colonna];
            if (c.tipo != Tipo::Testo)
                (void)sqlite3_value_numeric_type(valori[i]);
            chiave += parteDiChiave(c, ci.crescente, byteDi(c, valori[i]));
        }
        return chiave;
    } catch (const Guasto&) {
        return std::nullopt;
    }
}

RigheTrovate perIndice(TabellaAccess& t, std::size_t quale, const std::vector<sqlite3_value*>& valori) {
    const jet::Definizione& d = t.tabella.definizione();
    if (quale >= d.indici.size() || valori.size() > d.indici[quale].colonne.size())
        return t.tabella.righe(); // the indexes are other ones by now
    const auto chiave = prefisso(d, d.indici[quale], valori);
    if (!chiave)
        return t.tabella.righe();
    RigheTrovate righe;
    for (const jet::Posizione p : jet::Albero(t.tabella.pagine(), d, d.indici[quale]).conPrefisso(*chiave))
        if (auto r = t.tabella.riga(p))
            righe.push_back({p, std::move(*r)});
    return righe;
}

RigheTrovate perNumero(TabellaAccess& t, int numero, const std::vector<sqlite3_value*>& valori) {
    if (std::any_of(valori.begin(), valori.end(),
                    [](sqlite3_value* v) { return sqlite3_value_type(v) == SQLITE_NULL; }))
        return {}; // nothing equals a null
    if (numero == Percorso::kTutte)
        return t.tabella.righe();
    if (numero >= Percorso::kIndici)
        return perIndice(t, static_cast<std::size_t>((numero - Percorso::kIndici) / kColonneIndice), valori);
    RigheTrovate una;
    const std::int64_t chiave = sqlite3_value_int64(valori.front());
    if (chiave < 0 || chiave > UINT32_MAX)
        return una;
    const jet::Posizione p = TabelleVirtuali::posizione(chiave);
    const auto possedute = [&] { // an address may point anywhere
        if (p.pagina >= t.tabella.pagine().quante())
            return false;
        const jet::PaginaLetta pagina = t.tabella.pagine().leggi(p.pagina);
        return pagina->tipo() == jet::TipoPagina::Dati &&
               pagina->u32(jet::PaginaDati::kProprietario) == t.tabella.definizione().pagina;
    };
    if (possedute())
        if (auto r = t.tabella.riga(p))
            una.push_back({p, std::move(*r)});
    return una;
}

/// Takes a field's value for SQLite; RigaIntera is the other taker.
struct PerSqlite {
    sqlite3_context* contesto;

    void nullo() const {}
    void intero(std::int64_t n) const { sqlite3_result_int64(contesto, n); }
    void doppio(double n) const { sqlite3_result_double(contesto, n); }
    void testo(std::string_view t) const {
        sqlite3_result_text(contesto, t.data(), static_cast<int>(t.size()), SQLITE_TRANSIENT);
    }
    void byte(std::string_view b) const {
        sqlite3_result_blob64(contesto, b.data(), b.size(), SQLITE_TRANSIENT);
    }
};

template <typename Presa>
void daiLungo(Presa& presa, TabellaAccess& t, const Colonna& c, jet::Vista campo) {
    const std::string dati = leggiValoreLungo(t.tabella.pagine(), campo);
    if (c.tipo == Tipo::Ole)
        presa.byte(dati);
    else
        presa.testo(jet::leggiTesto(
            {{reinterpret_cast<const std::uint8_t*>(dati.data()), dati.size()}, campo.pagina()}));
}

template <typename Presa>
void dai(Presa& presa, const Colonna& c, const jet::Dato& dato) {
    if (const auto* n = std::get_if<std::int64_t>(&dato))
        presa.intero(*n);
    else if (const auto* r = std::get_if<double>(&dato))
        presa.doppio(*r);
    else if (const auto* b = std::get_if<jet::Byte>(&dato))
        presa.byte(b->byte);
    else if (c.tipo == Tipo::Decimale)
        presa.doppio(val(std::get<std::string>(dato)));
    else
        presa.testo(std::get<std::string>(dato));
}

template <typename Presa>
void daiCampo(Presa& presa, const CursoreAccess& cursore, const Colonna& c) {
    const bool nulla = cursore.riga->nulla(c);
    if (c.tipo == Tipo::Booleano)
        return presa.intero(nulla ? 0 : -1);
    if (nulla)
        return presa.nullo();
    const jet::Vista campo = cursore.riga->valore(c);
    if (jet::numeroIntero(c.tipo))
        presa.intero(jet::leggiIntero(c.tipo, campo));
    else if (valoreLungo(c.tipo))
        daiLungo(presa, cursore.tabella(), c, campo);
    else
        dai(presa, c, leggiDato(c, campo));
}

} // namespace

void Percorso::scegli(TabellaAccess& t, sqlite3_index_info& info) {
    const jet::Definizione& d = t.tabella.definizione();
    const double tutte = std::max<double>(d.righe, 10);
    info.idxNum = kTutte;
    info.estimatedCost = tutte;
    info.estimatedRows = static_cast<sqlite3_int64>(tutte);
    if (const std::string ordine = ordine_access::scegli(d, info); !ordine.empty()) {
        info.idxStr = sqlite3_mprintf("%s", ordine.c_str());
        info.needToFreeIdxStr = 1;
        info.orderByConsumed = info.idxStr ? 1 : 0;
    }
    if (const int v = uguaglianza(info, -1); v >= 0) {
        info.idxNum = kChiave;
        info.aConstraintUsage[v].argvIndex = 1;
        info.estimatedCost = info.estimatedRows = 1;
        info.idxFlags = SQLITE_INDEX_SCAN_UNIQUE;
        return;
    }
    Scelta migliore;
    for (std::size_t k = 0; k < d.indici.size(); ++k)
        if (chiaviPossibili(d, d.indici[k]))
            if (Scelta s = misura(d, k, info, tutte);
                !s.vincoli.empty() && (migliore.indice < 0 || s.righe < migliore.righe))
                migliore = std::move(s);
    if (migliore.indice < 0)
        return;
    info.idxNum = kIndici + migliore.indice * kColonneIndice;
    for (std::size_t i = 0; i < migliore.vincoli.size(); ++i)
        info.aConstraintUsage[migliore.vincoli[i]].argvIndex = static_cast<int>(i) + 1;
    info.estimatedCost = std::log2(tutte) + migliore.righe;
    info.estimatedRows = static_cast<sqlite3_int64>(migliore.righe);
}

RigheTrovate Percorso::cerca(TabellaAccess& t, int numero, const char* ordine,
                             const std::vector<sqlite3_value*>& valori) {
    t.tabella.apri();
    return t.tabella.pagine().coerente([&] {
        RigheTrovate righe = perNumero(t, numero, valori);
        if (ordine)
            ordine_access::ordina(t.tabella.definizione(), ordine, righe);
        return righe;
    });
}

void CursoreAccess::vaiA(std::size_t nuovo) {
    posto = nuovo;
    if (!finito())
        riga.emplace(*definizione, (*righe)[posto].riga.byte);
}

void CursoreAccess::colonna(sqlite3_context* contesto, std::size_t i) {
    PerSqlite presa{contesto};
    if (i < definizione->colonne.size())
        return daiCampo(presa, *this, definizione->colonne[i]);
    intera.azzera();
    for (const Colonna& c : definizione->colonne)
        daiCampo(intera, *this, c);
    presa.byte(intera.composta());
}

std::optional<std::string> byteDi(const Colonna& colonna, sqlite3_value* valore) {
    const auto lunga = static_cast<std::size_t>(sqlite3_value_bytes(valore));
    switch (sqlite3_value_type(valore)) {
    case SQLITE_NULL:
        return std::nullopt;
    case SQLITE_INTEGER:
        return scriviDato(colonna, sqlite3_value_int64(valore));
    case SQLITE_FLOAT:
        return scriviDato(colonna, sqlite3_value_double(valore));
    case SQLITE_BLOB:
        return scriviDato(colonna, jet::Byte{{static_cast<const char*>(sqlite3_value_blob(valore)), lunga}});
    default:
        return scriviDato(colonna,
                          std::string(reinterpret_cast<const char*>(sqlite3_value_text(valore)), lunga));
    }
}

} // namespace lumigrafo
