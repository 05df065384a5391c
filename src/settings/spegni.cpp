#include "settings/spegni.h"

#include "forms/verifica.h"
#include "settings/processo.h"
#include "settings/stile.h"

#include <array>
#include <utility>

namespace lumigrafo {

namespace {

constexpr Carattere kEtichetta{"Arial Black", 16};
constexpr Colore kTesto = rgb(255, 255, 255);

// clang-format off
constexpr std::array<Descrizione, 9> kControlli{{
    {.tipo = Tipo::Immagine, .nome = "imgSfondo", .padre = "", .rett = {0, 0, 9000, 5100}, .figura = "uscita"},
    {.tipo = Tipo::Bottone, .nome = "cmdSpegni", .padre = "", .rett = {600, 750, 2100, 2100}, .figura = "spegni", .nomeAccessibile = "Spegni il computer", .scelta = 's'},
    {.tipo = Tipo::Bottone, .nome = "cmdRiavvia", .padre = "", .rett = {3450, 750, 2100, 2100}, .figura = "riavvia", .nomeAccessibile = "Riavvia il computer", .scelta = 'r'},
    {.tipo = Tipo::Bottone, .nome = "cmdChiudi", .padre = "", .rett = {6300, 750, 2100, 2100}, .figura = "esci", .nomeAccessibile = "Esci dal programma", .scelta = 'e'},
    {.tipo = Tipo::Etichetta, .nome = "lblSpegni", .padre = "", .rett = {300, 2925, 2700, 525}, .carattere = kEtichetta, .allineamento = Allineamento::Centro, .testo = kTesto, .caption = "Spegni", .scelta = 's'},
    {.tipo = Tipo::Etichetta, .nome = "lblRiavvia", .padre = "", .rett = {3150, 2925, 2700, 525}, .carattere = kEtichetta, .allineamento = Allineamento::Centro, .testo = kTesto, .caption = "Riavvia", .scelta = 'r'},
    {.tipo = Tipo::Etichetta, .nome = "lblChiudi", .padre = "", .rett = {6000, 2925, 2700, 525}, .carattere = kEtichetta, .allineamento = Allineamento::Centro, .testo = kTesto, .caption = "Esci", .scelta = 'e'},
    stile::bottone("cmdAnnulla", {3150, 3825, 2700, 900}, "Indietro"),
    {.tipo = Tipo::Linea, .nome = "Line", .padre = "", .rett = {600, 3600, 7800, 15}, .testo = kTesto},
}};
// clang-format on
static_assert(layoutValido(kControlli));

const Layout kLayoutSpegni{"frmSpegni", "", 9000, 5100, rgb(38, 50, 70), kControlli};

} // namespace

Spegni::Spegni(Processi& processi, Alimentazione& alimentazione, Uscita& uscita,
               std::function<void()> indietro)
    : controlli_(kLayoutSpegni), processi_(processi), alimentazione_(alimentazione), uscita_(uscita),
      indietro_(std::move(indietro)) {}

void Spegni::clic(std::string_view nome) {
    if (nome == "cmdAnnulla")
        return indietro_();
    if (nome != "cmdSpegni" && nome != "cmdRiavvia" && nome != "cmdChiudi")
        return;
    FermaPrimoPiano(processi_);
    if (nome == "cmdSpegni")
        alimentazione_.spegni();
    else if (nome == "cmdRiavvia")
        alimentazione_.riavvia();
    else
        uscita_.termina(0);
}

} // namespace lumigrafo
