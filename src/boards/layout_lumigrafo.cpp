#include "boards/layout_videate.h"
#include "boards/righe.h"

namespace lumigrafo {

namespace {

constexpr Carattere kReparto{"Arial", 36, true, true};
constexpr Carattere kGrande{"Arial Narrow", 129.75, true};
constexpr Carattere kPiccolo{"Arial", 39.75, true};
constexpr Carattere kIntestazione{"Arial", 15.75, true, true};
constexpr Carattere kChiudi{"Arial", 12, true};
constexpr Colore kGrigioScuro = rgb(40, 40, 40);
constexpr Allineamento kCentro = Allineamento::Centro;

// clang-format off
constexpr std::array<Descrizione, 4> kPrima{{
    {Tipo::Etichetta, "lblTitoloLumigrafo", kSenzaIndice, "", {75, 60, 14490, 705}, kCarattereTitolo, kCentro, kBianco},
    {Tipo::Riquadro, "picPannello", 0, "", {45, 750, 4950, 9600}, {}, kCentro, kBianco, kNero},
    {Tipo::Riquadro, "picPannello", 1, "", {5070, 750, 4950, 9600}, {}, kCentro, kBianco, kNero},
    {Tipo::Riquadro, "picPannello", 2, "", {10095, 750, 4950, 9600}, {}, kCentro, kBianco, kNero},
}};

constexpr std::array<RigaSlot, 11> kSlot{{
    {{Tipo::Linea, "Line", 0, "", {135, 7980, 4680, 45}, {}, kCentro, kBianco}},
    {{Tipo::Linea, "Shape1", 0, "", {1523, 8850, 210, 120}, {}, kCentro, kGrigio}, 2},
    {{Tipo::Linea, "Shape1", 1, "", {3135, 8850, 210, 120}, {}, kCentro, kGrigio}, 2},
    {{Tipo::Etichetta, "lblTitolo", 0, "", {150, 60, 4695, 1125}, kReparto, kCentro, kBianco}},
    {{Tipo::Etichetta, "lblNumero1", 0, "", {225, 5070, 4590, 2895}, kGrande, kCentro, kBianco}},
    {{Tipo::Etichetta, "lblNumero2", 0, "", {240, 2865, 4590, 2505}, kGrande, kCentro, kBianco}},
    {{Tipo::Etichetta, "lblNumero3", 0, "", {345, 675, 4590, 2505}, kGrande, kCentro, kBianco}},
    {{Tipo::Etichetta, "Label", 1, "", {300, 8040, 4305, 420}, kIntestazione, kCentro, kNero, kBianco, "NUMERI GIA' CHIAMATI"}},
    {{Tipo::Etichetta, "lblNumero4", 0, "", {60, 8475, 1500, 855}, kPiccolo, kCentro, kBianco}},
    {{Tipo::Etichetta, "lblNumero5", 0, "", {1695, 8475, 1500, 855}, kPiccolo, kCentro, kBianco}},
    {{Tipo::Etichetta, "lblNumero6", 0, "", {3285, 8475, 1560, 855}, kPiccolo, kCentro, kBianco}},
}};

constexpr std::array<Descrizione, 2> kDopo{{
    {.tipo = Tipo::Riquadro, .nome = "picChiudi", .padre = "", .rett = {14745, 15, 360, 345}, .sfondo = kGrigioScuro, .cliccabile = true},
    {.tipo = Tipo::Etichetta, .nome = "lblChiudi", .padre = "picChiudi", .rett = {0, 0, 360, 345}, .carattere = kChiudi,
     .allineamento = kCentro, .testo = kGrigio, .caption = "X", .nomeAccessibile = "Chiudi il lumigrafo", .cliccabile = true},
}};
// clang-format on

constexpr auto kControlli =
    conMargine(unisci(kPrima, perSlot<3>(kPannelli, kSlot), kDopo, comunicazione(15120, 10395)));
static_assert(layoutValido(kControlli));

} // namespace

const Layout kLayoutLumigrafo{"frmLumigrafo", "", 15120, 10395, kNero, kControlli};

} // namespace lumigrafo
