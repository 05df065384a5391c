#include "boards/layout_videate.h"
#include "boards/righe.h"

namespace lumigrafo {

namespace {

constexpr Carattere kGrande{"Arial", 72, true};
constexpr std::string_view kInvito = "Quando compare il vostro numero, andate alla cassa indicata";
constexpr std::array<std::string_view, 5> kLettere{"A", "B", "C", "D", "E"};
constexpr Contenitori kNumeri{"picNumero(0)", "picNumero(1)", "picNumero(2)", "picNumero(3)", "picNumero(4)"};

constexpr std::array<Descrizione, 5> pannelli() {
    constexpr std::array<Twip, 5> kAlti{15, 2190, 4305, 6420, 8535};
    std::array<Descrizione, 5> righe{};
    for (std::size_t i = 0; i < righe.size(); ++i)
        righe[i] = {.tipo = Tipo::Cornice,
                    .nome = "picPannello",
                    .indice = static_cast<int>(i),
                    .rett = {30, kAlti[i], 15375, i == 0 ? 2160.0 : 2100.0},
                    .sfondo = kNero,
                    .visibile = false};
    return righe;
}

constexpr std::array<Descrizione, 5> lettere() {
    std::array<Descrizione, 5> righe{};
    for (std::size_t i = 0; i < righe.size(); ++i) {
        righe[i] = scritta("lblCassa", static_cast<int>(i), kPannelli[i], {6195, 195, 2340, 1770}, kGrande,
                           kBianco, kLettere[i]);
        righe[i].inAlto = true;
        // Away from "Cassa", which with two desks fills its label.
        righe[i].allineamento = Allineamento::Destra;
    }
    return righe;
}

// clang-format off
constexpr std::array<RigaSlot, 2> kCassa{{
    {{.tipo = Tipo::Etichetta, .nome = "lblDescrCassa", .indice = 0, .rett = {570, 195, 6270, 1785}, .carattere = kGrande,
      .testo = kBianco, .caption = "Cassa", .inAlto = true}},
    {{.tipo = Tipo::Riquadro, .nome = "picNumero", .indice = 0, .rett = {10170, 240, 4755, 1635}, .sfondo = kBianco}},
}};
constexpr std::array<RigaSlot, 1> kNumero{{{scritta("lblNumero", 0, "", {240, -405, 4320, 2115}, kGrande, kNero)}}};

constexpr std::array<Descrizione, 3> kDueRighe{{
    {.tipo = Tipo::Riquadro, .nome = "FraMirtolanda2", .rett = {420, 8985, 14595, 1980}, .sfondo = kSfondoStriscia,
     .visibile = false},
    scritta("Label2", kSenzaIndice, "FraMirtolanda2", {150, 120, 14295, 960}, {"Arial", 36, true}, kBianco,
            "Avanti il prossimo!"),
    scritta("Label3", kSenzaIndice, "FraMirtolanda2", {150, 1080, 14295, 780}, {"Arial", 24}, rgb(214, 224, 233), kInvito),
}};

constexpr auto kControlli = conMargine(unisci(
    pannelli(),
    perSlot<5>(kPannelli, kCassa),
    lettere(),
    perSlot<5>(kNumeri, kNumero),
    pubblicita({15, 6615, 15360, 3645}, false),
    striscia({0, 10755, 15420, 675}, {150, 0, 15120, 675}, 22.5, kInvito),
    kDueRighe,
    chiudi({14610, 60, 510, 480})));
// clang-format on

static_assert(layoutValido(kControlli));

} // namespace

const Layout kLayoutAvantiProssimo{"frmAvantiProssimo", "", 15420, 11430, kNero, kControlli};

} // namespace lumigrafo
