#include "announce/finestra_fiscale.h"
#include "forms/verifica.h"

#include <array>

namespace lumigrafo {

namespace {

constexpr Colore kBordo = rgb(46, 84, 120);

// clang-format off
constexpr std::array<Descrizione, 6> kControlli{{
    {.tipo = Tipo::Immagine, .nome = "picFiscale", .padre = "", .rett = {300, 450, 1800, 1800}, .figura = "scontrino"},
    {.tipo = Tipo::Etichetta, .nome = "lblFiscale", .padre = "", .rett = {2280, 450, 4680, 1800},
     .carattere = {"Arial", 18, true}, .testo = rgb(31, 41, 51), .caption = "Emissione scontrino fiscale in corso ..."},
    {.tipo = Tipo::Linea, .nome = "linea", .indice = 0, .padre = "", .rett = {0, 0, 7200, 60}, .testo = kBordo},
    {.tipo = Tipo::Linea, .nome = "linea", .indice = 1, .padre = "", .rett = {0, 2670, 7200, 30}, .testo = kBordo},
    {.tipo = Tipo::Linea, .nome = "linea", .indice = 2, .padre = "", .rett = {0, 0, 30, 2700}, .testo = kBordo},
    {.tipo = Tipo::Linea, .nome = "linea", .indice = 3, .padre = "", .rett = {7170, 0, 30, 2700}, .testo = kBordo},
}};
// clang-format on
static_assert(layoutValido(kControlli));

} // namespace

const Layout kLayoutFiscale{"frmFiscale", "Lumigrafo", 7200, 2700, rgb(255, 255, 255), kControlli};

} // namespace lumigrafo
