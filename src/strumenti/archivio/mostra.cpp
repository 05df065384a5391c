#include "strumenti/archivio/mostra.h"

#include "data/istruzioni.h"
#include "platform/conversioni.h"

#include <algorithm>
#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace lumigrafo::archivio {

namespace {

using Riga = std::vector<std::string>;

/// The categories that have a name.
std::map<int, std::string> nomiCategorie(Database& db) {
    std::map<int, std::string> nomi;
    const auto rs = db.OpenRecordset(istruzioni::kCategorie);
    for (; !rs->Eof(); rs->MoveNext())
        nomi[rs->Fields()["Codice"].Value().aIntero32()] = rs->Fields()["Descrizione"].Value().aTestoOVuoto();
    return nomi;
}

std::string ordine(Recordset& rs) {
    const std::string sigla = trim(rs.Fields()["Sigla"].Value().aTestoOVuoto());
    const std::string numero = rs.Fields()["Numero"].Value().aTestoOVuoto();
    return sigla.empty() ? numero : sigla + "  " + numero;
}

/// The pieces still to serve; empty where the order has nothing open in that category.
std::string daServire(Recordset& rs, int categoria) {
    const std::string codice = std::to_string(categoria);
    if (!rs.Fields()["Categoria" + codice].Value().aBooleano())
        return {};
    const Valore pezzi = rs.Fields()["Pezzi" + codice].Value();
    return pezzi.nullo() ? "?" : pezzi.aTesto();
}

std::vector<Riga> tabella(Database& db, Recordset& rs) {
    std::map<int, std::string> categorie = nomiCategorie(db);
    for (int c = 1; c <= 10; ++c)
        for (rs.Requery(); !rs.Eof(); rs.MoveNext())
            if (!daServire(rs, c).empty())
                categorie.try_emplace(c, "Categoria " + std::to_string(c));
    std::vector<Riga> righe(1, Riga{"Ordine"});
    for (const auto& [codice, nome] : categorie)
        righe[0].push_back(nome);
    righe[0].emplace_back("Evidenzia");
    for (rs.Requery(); !rs.Eof(); rs.MoveNext()) {
        Riga r{ordine(rs)};
        for (const auto& [codice, nome] : categorie)
            r.push_back(codice >= 1 && codice <= 10 ? daServire(rs, codice) : "");
        r.emplace_back(rs.Fields()["Evidenzia"].Value().aBooleano() ? "sì" : "");
        righe.push_back(std::move(r));
    }
    return righe;
}

/// Each column as wide as its widest entry; the first to the left, numbers to the right.
void stampa(const std::vector<Riga>& righe, std::ostream& out) {
    std::vector<std::size_t> larghezze(righe[0].size());
    for (const Riga& r : righe)
        for (std::size_t i = 0; i < r.size(); ++i)
            larghezze[i] = std::max(larghezze[i], caratteri(r[i]));
    for (const Riga& r : righe) {
        std::string linea;
        for (std::size_t i = 0; i < r.size(); ++i) {
            const std::string spazi(larghezze[i] - caratteri(r[i]), ' ');
            linea += i == 0 ? r[i] + spazi : "  " + spazi + r[i];
        }
        linea.erase(linea.find_last_not_of(' ') + 1);
        out << linea << '\n';
    }
}

} // namespace

void mostraCoda(Database& db, std::ostream& out) {
    const auto rs = db.OpenRecordset(istruzioni::kLumigrafo);
    if (rs->RecordCount() == 0) {
        out << "Nessun ordine in coda.\n";
    } else {
        stampa(tabella(db, *rs), out);
        out << (rs->RecordCount() == 1 ? "1 ordine in coda."
                                       : std::to_string(rs->RecordCount()) + " ordini in coda.")
            << '\n';
    }
    const auto numero = db.OpenRecordset(istruzioni::kNumero);
    if (!numero->Eof())
        out << "Le casse stanno servendo il numero " << numero->Fields()["Numero"].Value().aTestoOVuoto()
            << ".\n";
}

} // namespace lumigrafo::archivio
