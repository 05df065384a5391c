#include "boards/layout_videate.h"
#include "boards/righe.h"

namespace lumigrafo {

namespace {

constexpr Carattere kGrande{"Arial Black", 129.75, true};
constexpr Carattere kPiccolo{"Franklin Gothic Medium Cond", 45.75, true};

// clang-format off
constexpr std::array<Descrizione, 7> kNumeri{{
    {.tipo = Tipo::Immagine, .nome = "imgSfondo", .rett = {0, 0, 18960, 11535}, .figura = "sfondo_tabellone",
     .nomeAccessibile = "Sfondo del lumigrafo"},
    scritta("lblNumero3", 0, "", {840, 90, 6315, 3570}, kGrande),
    scritta("lblNumero2", 0, "", {840, 3915, 6315, 3570}, kGrande),
    scritta("lblNumero1", 0, "", {840, 7590, 6315, 3570}, kGrande),
    scritta("lblNumero4", 0, "", {12600, 9525, 1500, 900}, kPiccolo),
    scritta("lblNumero5", 0, "", {14910, 9525, 1500, 915}, kPiccolo),
    scritta("lblNumero6", 0, "", {17235, 9525, 1560, 990}, kPiccolo),
}};
constexpr auto kControlli = conMargine(unisci(
    kNumeri,
    pubblicita({11250, 1395, 7290, 2985}, false),
    chiudi({18375, 120, 510, 480}),
    comunicazione(18960, 11535)));
// clang-format on

static_assert(layoutValido(kControlli));

} // namespace

const Layout kLayoutPerson{"frmLumigrafoPerson", "", 18960, 11535, kNero, kControlli};

} // namespace lumigrafo
