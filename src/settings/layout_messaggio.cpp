#include "settings/layout_messaggio.h"

#include "forms/verifica.h"

#include <array>

namespace lumigrafo {

namespace {

constexpr Colore kRosso = rgb(192, 24, 24);
constexpr Colore kBordo = rgb(22, 40, 58);

// clang-format off
constexpr std::array<Descrizione, 2> kMessaggio{{
    {.tipo = Tipo::Immagine, .nome = "imgSfondo", .padre = "", .rett = {0, 0, 9600, 4200}, .figura = "messaggio"},
    {.tipo = Tipo::Etichetta, .nome = "lblMessaggio", .padre = "", .rett = {2550, 600, 6600, 3000},
     .carattere = {"Arial", 24, true}, .allineamento = Allineamento::Centro, .testo = kRosso,
     .caption = "Avviso", .cliccabile = true},
}};
constexpr std::array<Descrizione, 1> kSplash{{
    {.tipo = Tipo::Immagine, .nome = "imgSplash", .padre = "", .rett = {0, 0, 9600, 6000}, .figura = "splash",
     .nomeAccessibile = "Lumigrafo", .cliccabile = true},
}};
// clang-format on

static_assert(layoutValido(kMessaggio));
static_assert(layoutValido(kSplash));

} // namespace

const Layout kLayoutMessaggio{"frmMessaggio", "Lumigrafo", 9600, 4200, kBordo, kMessaggio};
const Layout kLayoutSplash{"frmSplash", "Lumigrafo", 9600, 6000, kNero, kSplash};

} // namespace lumigrafo
