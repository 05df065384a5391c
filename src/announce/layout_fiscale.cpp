#include "announce/finestra_fiscale.h"
#include "forms/verifica.h"

#include <array>

namespace lumigrafo {

namespace {

// clang-format off
constexpr std::array<Descrizione, 4> kControlli{{
    {.tipo = Tipo::Riquadro, .nome = "fraFiscale", .padre = "", .rett = {0, 0, 7200, 2700}, .sfondo = rgb(190, 202, 213)},
    {.tipo = Tipo::Riquadro, .nome = "fraCarta", .padre = "", .rett = {30, 30, 7140, 2640}, .sfondo = rgb(255, 255, 255)},
    {.tipo = Tipo::Immagine, .nome = "picFiscale", .padre = "", .rett = {300, 450, 1800, 1800}, .figura = "scontrino"},
    {.tipo = Tipo::Etichetta, .nome = "lblFiscale", .padre = "", .rett = {2280, 450, 4680, 1800},
     .carattere = {"Arial", 18, true}, .testo = rgb(31, 41, 51), .caption = "Emissione scontrino fiscale in corso ..."},
}};
// clang-format on
static_assert(layoutValido(kControlli));

} // namespace

const Layout kLayoutFiscale{"frmFiscale", "Lumigrafo", 7200, 2700, rgb(255, 255, 255), kControlli};

} // namespace lumigrafo
