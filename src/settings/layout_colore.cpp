#include "settings/layout_colore.h"

#include "forms/verifica.h"
#include "settings/stile.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace lumigrafo {

namespace {

constexpr Twip kLarghezza = 12600;
constexpr Twip kAltezza = 9000;
/// Size and distance of the fields.
constexpr double kLargo = 990, kAlto = 840, kPassoX = 1080, kPassoY = 930;

/// One field: its index, its colour as red, green, blue, and the colour's name.
struct Campo {
    int indice;
    std::uint32_t rrggbb;
    std::string_view nome;
};

constexpr std::array<Campo, 11> kTesti{{
    {5, 0xFFFFFF, "Testo bianco"},
    {28, 0x000000, "Testo nero"},
    {29, 0xE0E0E0, "Testo grigio chiaro"},
    {27, 0xFFFF80, "Testo giallo chiaro"},
    {0, 0x0000FF, "Testo blu"},
    {77, 0x85FD00, "Testo verde acido"},
    {1, 0x008000, "Testo verde scuro"},
    {3, 0x800000, "Testo bordeaux"},
    {2, 0x00FF00, "Testo verde"},
    {4, 0xFFFF00, "Testo giallo"},
    {6, 0x804000, "Testo marrone"},
}};

constexpr std::size_t kPerRiga = 10;
constexpr std::array<Campo, 3 * kPerRiga> kSfondi{{
    {0, 0xFFC0C0, "Sfondo rosa"},
    {1, 0xFFE0C0, "Sfondo pesca"},
    {2, 0xFFFFC0, "Sfondo crema"},
    {3, 0xC0FFC0, "Sfondo menta"},
    {4, 0xC0FFFF, "Sfondo ghiaccio"},
    {5, 0xC0C0FF, "Sfondo lavanda"},
    {6, 0xFFC0FF, "Sfondo malva"},
    {17, 0xC9B998, "Sfondo sabbia"},
    {16, 0x008000, "Sfondo verde scuro"},
    {29, 0x404040, "Sfondo grigio scuro"},
    {9, 0xFF8080, "Sfondo corallo"},
    {8, 0xFFC080, "Sfondo albicocca"},
    {7, 0xFFFF80, "Sfondo giallo chiaro"},
    {10, 0x80FF80, "Sfondo verde chiaro"},
    {11, 0x80FFFF, "Sfondo azzurro chiaro"},
    {12, 0x8080FF, "Sfondo pervinca"},
    {13, 0xFF80FF, "Sfondo rosa acceso"},
    {15, 0xA92014, "Sfondo mattone"},
    {14, 0x0000C0, "Sfondo blu scuro"},
    {28, 0x808080, "Sfondo grigio"},
    {25, 0xFF0000, "Sfondo rosso"},
    {26, 0xC04000, "Sfondo ruggine"},
    {21, 0xF8EC16, "Sfondo giallo"},
    {20, 0x00C000, "Sfondo verde"},
    {24, 0x00C0C0, "Sfondo turchese"},
    {23, 0x0000FF, "Sfondo blu"},
    {22, 0xFFFFFF, "Sfondo bianco"},
    {18, 0x85FD00, "Sfondo verde acido"},
    {19, 0x000000, "Sfondo nero"},
    {27, 0x800080, "Sfondo viola"},
}};

constexpr Colore colore(std::uint32_t rrggbb) {
    return rgb(static_cast<int>(rrggbb >> 16), static_cast<int>(rrggbb >> 8 & 0xFF),
               static_cast<int>(rrggbb & 0xFF));
}

/// The fields of one frame, from left to right and by row.
template <std::size_t N>
constexpr std::array<Descrizione, N> campi(const std::array<Campo, N>& dati, std::string_view nome,
                                           std::string_view padre, std::size_t perRiga) {
    std::array<Descrizione, N> righe{};
    for (std::size_t i = 0; i < N; ++i) {
        const auto colonna = static_cast<double>(i % perRiga), riga = static_cast<double>(i / perRiga);
        righe[i] = {.tipo = Tipo::Bottone,
                    .nome = nome,
                    .indice = dati[i].indice,
                    .padre = padre,
                    .rett = {165 + colonna * kPassoX, 510 + riga * kPassoY, kLargo, kAlto},
                    .sfondo = colore(dati[i].rrggbb),
                    .nomeAccessibile = dati[i].nome};
    }
    return righe;
}

// clang-format off
constexpr std::array<Descrizione, 3> kTesta{{
    {.tipo = Tipo::Etichetta, .nome = "lblAnteprima", .rett = {225, 225, 12150, 1350}, .carattere = {"Arial", 30, true},
     .allineamento = Allineamento::Centro, .caption = "ANTEPRIMA"},
    {.tipo = Tipo::Gruppo, .nome = "fraTesto", .rett = {225, 1800, 12150, 1575}, .carattere = stile::kGruppo,
     .testo = stile::kTitolo, .caption = "Colore testo"},
    {.tipo = Tipo::Gruppo, .nome = "fraSfondo", .rett = {225, 3600, 12150, 3450}, .carattere = stile::kGruppo,
     .testo = stile::kTitolo, .caption = "Colore di sfondo"},
}};
constexpr std::array<Descrizione, 1> kPiede{{
    stile::conferma("cmdOk", {9075, 7500, 3300, 1125}, "OK"),
}};
// clang-format on

constexpr auto kControlli = unisci(kTesta, campi(kTesti, "picColoreTesto", "fraTesto", kTesti.size()),
                                   campi(kSfondi, "picColore", "fraSfondo", kPerRiga), kPiede);
static_assert(layoutValido(kControlli));

} // namespace

const Layout kLayoutColore{"frmColore", "Scegli colore del bottone", kLarghezza, kAltezza, stile::kFondo,
                           kControlli};

} // namespace lumigrafo
