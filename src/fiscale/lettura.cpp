#include "fiscale/lettura.h"

#include "platform/conversioni.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace lumigrafo {

namespace {

/// How often a receipt is read anew that another station changes at that very moment.
constexpr int kLetture = 5;

/// A column's value; null where the archive has no such column.
Valore campo(Recordset& rs, std::string_view nome) {
    const auto& tutti = rs.Fields().tutti();
    const bool presente = std::any_of(tutti.begin(), tutti.end(),
                                      [&](const Field& f) { return ugualeSenzaMaiuscole(f.Name(), nome); });
    return presente ? rs.Fields()[nome].Value() : Valore();
}

std::optional<double> numero(const Valore& v) {
    return v.nullo() ? std::nullopt : std::optional(v.aDoppio());
}

std::optional<Centesimi> importo(const Valore& v) {
    // The product of a price and hundred can lie a hair below the half that it stands for.
    return v.nullo() ? std::nullopt : std::optional<Centesimi>(std::llround(v.aDoppio() * 100 * (1 + 1e-12)));
}

/// In quotes for a statement.
std::string citata(const std::string& testo) {
    std::string fuori = "'";
    for (const char c : testo)
        fuori += c == '\'' ? "''" : std::string(1, c);
    return fuori + "'";
}

/// The receipt's own row.
Scontrino leggiTestata(Database& db, std::int32_t id) {
    const auto rs =
        db.OpenRecordset("Select * from ScontriniEmessi Where ID_Scontrino = " + std::to_string(id));
    if (rs->Eof())
        throw Guasto(guastiFiscali::kAssente,
                     "Lo scontrino n. " + std::to_string(id) + " non è più nell'archivio.");
    Scontrino s;
    s.id = id;
    s.sigla = trim(campo(*rs, "Sigla").aTestoOVuoto());
    s.numero = campo(*rs, "Numero").aTestoOVuoto();
    const Valore data = campo(*rs, "DataCompetenza");
    s.dataCompetenza = data.nullo() ? 0 : data.aIntero32();
    s.totale = importo(campo(*rs, "Totale"));
    const Valore stornato = campo(*rs, "Stornato");
    if (!stornato.nullo() && stornato.aBooleano())
        throw Guasto(guastiFiscali::kStornato,
                     "Lo scontrino dell'ordine " + s.ordine() + " è stato stornato.");
    return s;
}

RigaScontrino leggiRiga(Recordset& rs) {
    RigaScontrino riga;
    riga.descrizione = trim(campo(rs, "Descrizione").aTestoOVuoto());
    riga.quantita = numero(campo(rs, "Quantita"));
    riga.prezzo = importo(campo(rs, "Prezzo"));
    riga.totale = importo(campo(rs, "Totale"));
    if (!riga.totale && riga.prezzo)
        riga.totale = std::llround(static_cast<double>(*riga.prezzo) * riga.quantita.value_or(1));
    return riga;
}

std::vector<RigaScontrino> leggiRighe(Database& db, const Scontrino& s) {
    const std::string sigla =
        s.sigla.empty() ? "(Sigla = '' Or Sigla Is Null)" : "Sigla = " + citata(s.sigla);
    const auto rs = db.OpenRecordset("Select * from Dettaglio Where Numero = " + s.numero + " and " + sigla +
                                     " and DataCompetenza = " + std::to_string(s.dataCompetenza));
    std::vector<RigaScontrino> righe;
    for (; !rs->Eof(); rs->MoveNext())
        righe.push_back(leggiRiga(*rs));
    return righe;
}

bool stessaTestata(const Scontrino& a, const Scontrino& b) {
    return a.sigla == b.sigla && a.numero == b.numero && a.dataCompetenza == b.dataCompetenza &&
           a.totale == b.totale;
}

} // namespace

Scontrino leggiScontrino(Database& db, std::int32_t id) {
    for (int volta = 0; volta < kLetture; ++volta) {
        Scontrino s = leggiTestata(db, id);
        if (!s.numero.empty())
            s.righe = leggiRighe(db, s);
        // The lines belong to the row as it was before them: one that changed meanwhile has others.
        if (stessaTestata(s, leggiTestata(db, id)))
            return s;
    }
    throw Guasto(guastiFiscali::kInModifica,
                 "Un'altra postazione sta modificando lo scontrino n. " + std::to_string(id) + ".");
}

} // namespace lumigrafo
