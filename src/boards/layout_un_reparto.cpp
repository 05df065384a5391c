#include "boards/layout_videate.h"
#include "boards/righe.h"

namespace lumigrafo {

namespace {

constexpr Carattere kGrande{"Arial Black", 99.75, true};
constexpr Carattere kMassimo{"Arial Black", 140.25, true};
constexpr Carattere kPiccolo{"Franklin Gothic Medium Cond", 39.75, true};
constexpr Carattere kPiccolo9{"Verdana", 36, true};
constexpr Twip kMargine = 60;

constexpr std::array<Descrizione, 2> titoloEPannello(Rettangolo titolo, double punti, Rettangolo pannello) {
    return {{scritta("lblTitoloLumigrafo", kSenzaIndice, "", titolo, {"Arial", punti, true, true}),
             {.tipo = Tipo::Cornice, .nome = "picPannello", .indice = 0, .rett = pannello, .sfondo = kNero}}};
}

/// The older numbers and their heading.
constexpr std::array<Descrizione, 4> giaChiamati(Rettangolo intestazione, double punti, int primo,
                                                 const std::array<Rettangolo, 3>& posti,
                                                 const Carattere& carattere) {
    std::array<Descrizione, 4> righe{scritta("lblChiamati", kSenzaIndice, "picPannello(0)", intestazione,
                                             {"Arial", punti, true}, kBianco, "Già chiamati")};
    for (int i = 0; i < 3; ++i)
        righe[static_cast<std::size_t>(i) + 1] = scritta(etichettaNumero(primo + i), 0, "picPannello(0)",
                                                         posti[static_cast<std::size_t>(i)], carattere);
    return righe;
}

// clang-format off
constexpr std::array<Rettangolo, 3> kTre{{
    {90, 240, 4740, 3120}, {5100, 225, 4740, 3150}, {10095, 210, 4740, 3150},
}};
constexpr std::array<Rettangolo, 6> kSei{{
    {90, 240, 4740, 3120}, {5100, 225, 4740, 3150}, {10095, 210, 4740, 3150},
    {90, 3555, 4740, 3150}, {5100, 3540, 4740, 3150}, {10095, 3525, 4740, 3150},
}};
constexpr std::array<Rettangolo, 3> kGrandissime{{
    {5325, 150, 7365, 3420}, {105, 3750, 6930, 3270}, {7800, 3720, 6930, 3270},
}};

constexpr auto kControlli = conMargine(unisci(
    titoloEPannello({75, 60, 14490, 705}, 32.25, {30, 930, 15060, 4530}),
    giaChiamati({4395, 3615, 2565, 495}, 18, 4,
                {{{7005, 3390, 1500, 900}, {8880, 3390, 1500, 900}, {10770, 3390, 1500, 900}}}, kPiccolo),
    caselle<1>(kTre, Tipo::Riquadro),
    numeriNelleCaselle<1>(dentro(kTre, kMargine), kGrande),
    pubblicita({60, 5535, 15000, 4815}),
    striscia({120, 9840, 14805, 540}, {262, 0, 14280, 540}, 18, kMotto),
    chiudi({14610, 60, 510, 480}),
    comunicazione(15120, 10395)));

constexpr std::array<Descrizione, 3> kPiede{{
    {.tipo = Tipo::Immagine, .nome = "Picture1", .rett = {525, 8760, 1590, 1605}, .figura = "marchio",
     .nomeAccessibile = "Marchio"},
    scritta("lblMirtolanda", kSenzaIndice, "", {2205, 8970, 12765, 615}, {"Arial", 26.25, true}, kBianco, "Lumigrafo"),
    scritta("Label2", kSenzaIndice, "", {1485, 9525, 13455, 765}, {"Arial", 20.25}, rgb(190, 202, 213),
            "i numeri, chiari a tutti"),
}};
constexpr auto kControlli9 = conMargine(unisci(
    titoloEPannello({75, 60, 14490, 705}, 32.25, {30, 930, 15060, 7815}),
    giaChiamati({4260, 6990, 4230, 615}, 24, 7,
                {{{8610, 6780, 1860, 900}, {10875, 6780, 1860, 900}, {13140, 6780, 1860, 900}}}, kPiccolo9),
    caselle<1>(kSei, Tipo::Riquadro),
    numeriNelleCaselle<1>(dentro(kSei, kMargine), kGrande),
    kPiede,
    chiudi({14610, 60, 510, 480}),
    comunicazione(15120, 10395)));

constexpr auto kControlliBig = conMargine(unisci(
    titoloEPannello({60, 60, 14460, 510}, 20.25, {75, 570, 15225, 7275}),
    giaChiamati({12540, 150, 2565, 495}, 18, 4,
                {{{13320, 540, 1500, 900}, {13290, 1425, 1500, 900}, {13260, 2295, 1500, 900}}}, kPiccolo),
    caselle<1>(kGrandissime, Tipo::Cornice),
    numeriNelleCaselle<1>(dentro(kGrandissime, kMargine), kMassimo),
    pubblicita({75, 135, 5115, 3375}, true, "picPannello(0)"),
    striscia({120, 7320, 14805, 540}, {262, 0, 14280, 540}, 18, kMotto),
    chiudi({14760, 45, 510, 480}),
    comunicazione(15330, 7890)));
// clang-format on

static_assert(layoutValido(kControlli));
static_assert(layoutValido(kControlli9));
static_assert(layoutValido(kControlliBig));

} // namespace

const Layout kLayoutUnReparto{"frmLumigrafo1Reparto", "", 15120, 10395, kNero, kControlli};
const Layout kLayoutUnReparto9{"frmLumigrafo1Reparto9numeri", "", 15120, 10395, kNero, kControlli9};
const Layout kLayoutBig{"frmLumigrafo1RepartoBig", "", 15330, 7890, kNero, kControlliBig};

} // namespace lumigrafo
