#include "settings/layout_ripristina.h"

#include "forms/verifica.h"
#include "settings/stile.h"

#include <array>

namespace lumigrafo {

namespace {

constexpr Twip kLarghezza = 13800;
constexpr Twip kAltezza = 7500;
constexpr Twip kColonna = 4500; ///< from one quadrant to the next
constexpr Twip kLarghezzaColonna = 4200;

constexpr Descrizione reparto(int i) {
    return {.tipo = Tipo::Etichetta,
            .nome = "lblReparto",
            .indice = i,
            .rett = {kColonna * i + 300, 225, kLarghezzaColonna, 825},
            .carattere = {"Arial Black", 18},
            .allineamento = Allineamento::Centro,
            .testo = stile::kTitolo};
}

constexpr Descrizione griglia(int i) {
    return {.tipo = Tipo::Griglia,
            .nome = "grid",
            .indice = i,
            .rett = {kColonna * i + 300, 1125, kLarghezzaColonna, 4500},
            .carattere = {"Arial", 32, true},
            .testo = stile::kTesto,
            .sfondo = stile::kCarta};
}

constexpr std::array<Descrizione, 7> kControlli{{
    reparto(0),
    reparto(1),
    reparto(2),
    griglia(0),
    griglia(1),
    griglia(2),
    stile::bottone("cmdUscita", {4800, 6075, 4200, 1050}, "USCITA"),
}};
static_assert(layoutValido(kControlli));

} // namespace

const Layout kLayoutRipristina{"frmRipristina", "Ripristino numeri", kLarghezza,
                               kAltezza,        stile::kFondo,       kControlli};

} // namespace lumigrafo
