#include "data/tabella_virtuale.h"

#include "data/errori_dao.h"
#include "data/guasto_sqlite.h"
#include "data/jet/ordinamento.h"
#include "data/lessico.h"
#include "data/modulo_access.h"

#include <sqlite3.h>

namespace lumigrafo {

namespace {

constexpr const char* kModulo = "access";

int confrontaTesti(void*, int lungaA, const void* a, int lungaB, const void* b) {
    return jet::confronta({static_cast<const char*>(a), static_cast<std::size_t>(lungaA)},
                          {static_cast<const char*>(b), static_cast<std::size_t>(lungaB)});
}

Guasto collegata(const jet::VoceCatalogo& voce) {
    return {dao::kTabellaMancante, "La tabella '" + voce.nome + "' è collegata: i suoi dati stanno in " +
                                       (voce.altrove.empty() ? "un altro file" : "'" + voce.altrove + "'") +
                                       ", non nell'archivio, e da qui non si possono usare."};
}

} // namespace

void TabelleVirtuali::crea(sqlite3* db) {
    db_ = db;
    sqlite3_create_collation(db, kConfrontoAccess, SQLITE_UTF8, nullptr, confrontaTesti);
    sqlite3_create_module(db, kModulo, moduloAccess(), this);
    voci_ = pagine_.coerente([this] { return leggiCatalogo(pagine_); });
    for (const jet::VoceCatalogo& voce : voci_) {
        if (voce.sistema)
            continue;
        if (voce.definizione == 0) {
            inservibili_.emplace_back(voce.nome, collegata(voce));
            continue;
        }
        const std::string sql = "CREATE VIRTUAL TABLE " + lessico::traVirgolette(voce.nome) + " USING " +
                                kModulo + '(' + std::to_string(voce.definizione) + ')';
        if (sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
            lasciaFuori(voce, erroreSqlite(db, Operazione::Apertura));
    }
}

/// A damaged table doesn't keep the others from being used.
void TabelleVirtuali::lasciaFuori(const jet::VoceCatalogo& voce, const Guasto& guasto) {
    if (guasto.numero() != dao::kDanneggiato)
        throw guasto;
    inservibili_.emplace_back(voce.nome, Guasto(guasto.numero(), "La tabella '" + voce.nome +
                                                                     "' non si può usare, le altre sì. " +
                                                                     guasto.descrizione()));
}

std::optional<Guasto> TabelleVirtuali::inservibile(const std::string& tabella) const {
    for (const auto& [nome, guasto] : inservibili_)
        if (jet::stessoNome(nome, tabella))
            return guasto;
    return std::nullopt;
}

RegoleAccess TabelleVirtuali::regoleDi(const jet::Definizione& definizione) {
    std::vector<jet::Proprieta> proprieta;
    for (const jet::VoceCatalogo& voce : voci_)
        if (voce.definizione == definizione.pagina)
            ignorandoGuasti([&] { proprieta = leggiProprieta(pagine_, voce); });
    return {definizione, proprieta};
}

std::uint32_t TabelleVirtuali::definizioneDi(const std::string& tabella) const {
    for (const jet::VoceCatalogo& voce : voci_)
        if (voce.definizione != 0 && jet::stessoNome(voce.nome, tabella))
            return voce.definizione;
    throw erroreDao(dao::kTabellaMancante, tabella);
}

void TabelleVirtuali::segna(int punto) {
    if (!segni_.contains(punto)) // each table of the transaction is told of it
        segni_.emplace(punto, pagine_.segno());
}

void TabelleVirtuali::dimentica(int punto) {
    const auto da = segni_.lower_bound(punto);
    if (da == segni_.end())
        return;
    pagine_.dimentica(da->second);
    segni_.erase(da, segni_.end());
}

void TabelleVirtuali::tornaA(int punto) {
    if (const auto segno = segni_.find(punto); segno != segni_.end())
        pagine_.tornaA(segno->second);
    segni_.erase(segni_.upper_bound(punto), segni_.end());
}

jet::Posizione TabelleVirtuali::posizione(std::int64_t chiave) {
    if (chiave < 0 || chiave > UINT32_MAX)
        throw erroreDao(dao::kRecordEliminato);
    return jet::Posizione::da(static_cast<std::uint32_t>(chiave));
}

} // namespace lumigrafo
