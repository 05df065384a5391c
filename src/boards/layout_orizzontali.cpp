#include "boards/layout_videate.h"
#include "boards/righe.h"

namespace lumigrafo {

namespace {

constexpr Carattere kReparto{"Arial Narrow", 48, true};
constexpr Carattere kGrande{"Franklin Gothic Heavy", 72, true};
constexpr Carattere kPiccolo{"Franklin Gothic Medium Cond", 30, true};
constexpr Carattere kIntestazione{"Arial", 12, true};
constexpr Rettangolo kNumero{50, -75, 3015, 1545};
/// The title is black, on a light window.
constexpr Colore kSfondo = rgb(233, 237, 241);

/// What a row looks like on one of the two boards, within its panel.
template <std::size_t Caselle>
struct Fila {
    std::array<Rettangolo, Caselle> caselle;
    Rettangolo reparto;
    int primoPiccolo; ///< lblNumero4.. or lblNumero7.., a column at the right
    std::array<Rettangolo, 3> piccoli;
};

template <std::size_t Caselle>
constexpr auto file(const Fila<Caselle>& f) {
    std::array<RigaSlot, 5> righe{
        {{scritta("lblTitolo", 0, "", f.reparto, kReparto)},
         {scritta("Label2", 0, "", {13350, 90, 1635, 285}, kIntestazione, kBianco, "Già chiamati")}}};
    righe[0].disegno.inAlto = true; // so it stands at the middle of its row
    for (int i = 0; i < 3; ++i)
        righe[static_cast<std::size_t>(i) + 2].disegno = scritta(
            etichettaNumero(f.primoPiccolo + i), 0, "", f.piccoli[static_cast<std::size_t>(i)], kPiccolo);
    std::array<Rettangolo, Caselle> numeri{};
    numeri.fill(kNumero);
    return unisci(perSlot<3>(kPannelli, righe), caselle<3>(f.caselle, Tipo::Riquadro),
                  numeriNelleCaselle<3>(numeri, kGrande));
}

constexpr std::array<Descrizione, 4> titoloEPannelli(const std::array<Rettangolo, 3>& posti) {
    std::array<Descrizione, 4> righe{
        scritta("lblTitoloLumigrafo", kSenzaIndice, "", {75, 60, 14490, 705}, kCarattereTitolo, kNero)};
    for (std::size_t i = 0; i < 3; ++i)
        righe[i + 1] = {.tipo = Tipo::Cornice,
                        .nome = "picPannello",
                        .indice = static_cast<int>(i),
                        .rett = posti[i],
                        .sfondo = kNero};
    return righe;
}

// clang-format off
constexpr Fila<3> kFila{
    .caselle = {{{3525, 105, 3135, 1650}, {6840, 105, 3135, 1650}, {10170, 105, 3135, 1650}}},
    .reparto = {45, 405, 3270, 1365},
    .primoPiccolo = 4,
    .piccoli = {{{13395, 300, 1500, 640}, {13395, 765, 1500, 640}, {13365, 1245, 1500, 640}}},
};
constexpr Fila<6> kFila9{
    .caselle = {{{3525, 105, 3135, 1380}, {6840, 105, 3135, 1380}, {10170, 105, 3135, 1380},
                 {3525, 1560, 3135, 1380}, {6840, 1560, 3135, 1380}, {10170, 1560, 3135, 1380}}},
    .reparto = {45, 1005, 3270, 1365},
    .primoPiccolo = 7,
    .piccoli = {{{13395, 300, 1500, 640}, {13395, 1155, 1500, 640}, {13365, 2010, 1500, 640}}},
};

constexpr auto kControlli = conMargine(unisci(
    titoloEPannelli({{{30, 930, 15060, 1890}, {30, 2925, 15060, 1890}, {30, 4920, 15060, 1890}}}),
    file(kFila),
    pubblicita({60, 6810, 15015, 3525}),
    striscia({135, 9825, 14805, 540}, {262, 0, 14280, 540}, 18, kMotto),
    chiudi({14610, 60, 510, 480}),
    comunicazione(15120, 10395)));

constexpr auto kControlli9 = conMargine(unisci(
    titoloEPannelli({{{30, 750, 15060, 3120}, {15, 3900, 15060, 3060}, {15, 7035, 15060, 3015}}}),
    file(kFila9),
    pubblicita({30, 6945, 15060, 3645}),
    striscia({30, 10050, 14805, 540}, {262, 0, 14280, 540}, 18, kMotto),
    chiudi({14610, 60, 510, 480}),
    comunicazione(15120, 10665)));
// clang-format on

static_assert(layoutValido(kControlli));
static_assert(layoutValido(kControlli9));

} // namespace

const Layout kLayoutOrizzontale{"frmLumigrafooRIZZ", "", 15120, 10395, kSfondo, kControlli};
const Layout kLayoutOrizzontale9{"frmLumigrafoOrizz9numeri", "", 15120, 10665, kSfondo, kControlli9};

} // namespace lumigrafo
