#include "data/schema_access.h"

#include "data/jet/catalogo.h"
#include "data/jet/dato.h"
#include "data/jet/nuovo_archivio.h"
#include "data/jet/tabella.h"

#include <chrono>

namespace lumigrafo {

namespace {

using jet::ColonnaNuova;
using jet::TabellaNuova;
using enum jet::Tipo;

std::vector<ColonnaNuova> colonneCoda() {
    std::vector<ColonnaNuova> v = {{"Sigla", Testo, 1}, {"Numero", Lungo}};
    for (int c = 1; c <= 10; ++c)
        v.push_back({"Categoria" + std::to_string(c), Booleano});
    for (int c = 1; c <= 10; ++c)
        v.push_back({"Pezzi" + std::to_string(c), Intero, 0, false, "0"});
    v.push_back({"Evidenzia", Booleano});
    return v;
}

/// As in the archives of the other format. The letter may be null, the queue's number may not.
std::vector<TabellaNuova> tabelle() {
    return {
        {"Lumigrafo",
         colonneCoda(),
         {{.nome = "LumigrafoOrdine", .colonne = {0, 1}, .unico = true},
          {.nome = "LumigrafoNumero", .colonne = {1}, .richiesto = true}}},
        {"Categorie",
         {{"Codice", Lungo}, {"Descrizione", Testo, 50}},
         {{.nome = "PrimaryKey", .colonne = {0}, .primaria = true}}},
        {"Numero", {{"Numero", Lungo}}, {}},
        {"DettaglioLumigrafo",
         {{"ID", Lungo, 0, true},
          {"Sigla", Testo, 1},
          {"Numero", Lungo},
          {"CATEGORIA", Lungo},
          {"SERVITO", Booleano},
          {"MinutiServito", Lungo}},
         {{.nome = "PrimaryKey", .colonne = {0}, .primaria = true},
          {.nome = "DettaglioLumigrafoOrdine", .colonne = {1, 2, 3}}}},
        {"Dettaglio",
         {{"ID", Lungo, 0, true},
          {"Sigla", Testo, 1},
          {"Numero", Lungo},
          {"DataCompetenza", Lungo},
          {"Descrizione", Testo, 50},
          {"Quantita", Intero},
          {"Prezzo", Valuta},
          {"Totale", Valuta},
          {"SERVITO", Booleano},
          {"MinutiServito", Lungo}},
         {{.nome = "PrimaryKey", .colonne = {0}, .primaria = true},
          {.nome = "DettaglioOrdine", .colonne = {1, 2, 3}}}},
        {"ScontriniEmessi",
         {{"ID_Scontrino", Lungo, 0, true},
          {"Sigla", Testo, 1},
          {"Numero", Lungo},
          {"DataCompetenza", Lungo},
          {"Totale", Valuta},
          {"Servito", Booleano},
          {"Stornato", Booleano}},
         {{.nome = "PrimaryKey", .colonne = {0}, .primaria = true},
          {.nome = "ScontriniOrdine", .colonne = {1, 2, 3}}}},
    };
}

/// Days since 1899-12-30, of now in the world's time.
double adesso() {
    using Giorni = std::chrono::duration<double, std::ratio<86400>>;
    constexpr double kEpoca = 25569; // 1970-01-01
    return kEpoca + Giorni(std::chrono::system_clock::now().time_since_epoch()).count();
}

} // namespace

void riempiAccess(const std::filesystem::path& file) {
    jet::nuovoArchivio(file, adesso());
    jet::Pagine pagine(file, {.da_soli = true});
    for (const TabellaNuova& t : tabelle())
        creaTabella(pagine, t);
    for (const jet::VoceCatalogo& voce : leggiCatalogo(pagine))
        if (voce.nome == "Numero") {
            jet::Tabella numero(pagine, voce.definizione);
            numero.inserisci({scriviDato(numero.definizione().colonne[0], std::int64_t{0})});
        }
    pagine.registra();
}

} // namespace lumigrafo
