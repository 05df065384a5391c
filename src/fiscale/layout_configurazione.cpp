#include "fiscale/layout.h"
#include "forms/verifica.h"
#include "settings/stile.h"

#include <array>

namespace lumigrafo {

namespace {

constexpr Twip kLarghezza = 15120, kAltezza = 10920; ///< all of the smallest screen
constexpr Twip kTastiera = 6660;                     ///< from here down the keyboard
constexpr Carattere kTesto{"Arial", 13};
constexpr Carattere kGrassetto{"Arial", 13, true};
constexpr Carattere kMinuto{"Arial", 11};
constexpr Carattere kSegno{"Arial", 20, true};
constexpr Carattere kTasti{"Arial", 15};
constexpr Colore kInchiostro = rgb(31, 41, 51);
constexpr Colore kGrigio = rgb(96, 110, 124);
constexpr Colore kCarta = rgb(255, 255, 255);
constexpr auto kCentro = Allineamento::Centro;

constexpr Descrizione bottone(std::string_view nome, int indice, Rettangolo rett, std::string_view caption,
                              Carattere carattere = kGrassetto, char scelta = 0) {
    return {.tipo = Tipo::Bottone,
            .nome = nome,
            .indice = indice,
            .rett = rett,
            .carattere = carattere,
            .allineamento = kCentro,
            .testo = kInchiostro,
            .caption = caption,
            .scelta = scelta};
}

constexpr Descrizione etichetta(std::string_view nome, Rettangolo rett, std::string_view caption) {
    return {.tipo = Tipo::Etichetta,
            .nome = nome,
            .rett = rett,
            .carattere = kGrassetto,
            .testo = kInchiostro,
            .caption = caption};
}

/// One line of the receipt's head or foot.
constexpr Descrizione riga(std::string_view nome, int indice, Twip left, std::string_view accessibile) {
    return {.tipo = Tipo::Casella,
            .nome = nome,
            .indice = indice,
            .rett = {left, Twip{2580} + Twip{780} * indice, 7110, 720},
            .carattere = kTesto,
            .allineamento = kCentro,
            .testo = kInchiostro,
            .sfondo = kCarta,
            .nomeAccessibile = accessibile};
}

// clang-format off
constexpr std::array<Descrizione, 27> kControlli{{
    bottone("cmdDriver", 0, {300, 120, 2784, 750}, "File di testo", kGrassetto, 'f'),
    bottone("cmdDriver", 1, {3234, 120, 2784, 750}, "Rete", kGrassetto, 'r'),
    bottone("cmdDriver", 2, {6168, 120, 2784, 750}, "Dispositivo", kGrassetto, 'd'),
    bottone("cmdDriver", 3, {9102, 120, 2784, 750}, "Coda di stampa", kGrassetto, 'c'),
    bottone("cmdDriver", 4, {12036, 120, 2784, 750}, "Programma", kGrassetto, 'g'),
    etichetta("lblIndirizzo", {300, 990, 1800, 735}, ""),
    {.tipo = Tipo::Casella, .nome = "txtIndirizzo", .rett = {2100, 990, 8550, 735}, .carattere = kTesto, .testo = kInchiostro, .sfondo = kCarta, .nomeAccessibile = "Indirizzo"},
    bottone("cmdStato", kSenzaIndice, {10800, 990, 4020, 735}, "", kTesto),
    {.tipo = Tipo::Etichetta, .nome = "lblAiuto", .rett = {2100, 1740, 12720, 345}, .carattere = kMinuto, .testo = kGrigio},
    etichetta("lblIntestazione", {300, 2160, 7110, 405}, "Intestazione dello scontrino"),
    riga("txtIntestazione", 0, 300, "Intestazione, riga 1"),
    riga("txtIntestazione", 1, 300, "Intestazione, riga 2"),
    riga("txtIntestazione", 2, 300, "Intestazione, riga 3"),
    riga("txtIntestazione", 3, 300, "Intestazione, riga 4"),
    etichetta("lblPiede", {7710, 2160, 7110, 405}, "Piede dello scontrino"),
    riga("txtPiede", 0, 7710, "Piede, riga 1"),
    riga("txtPiede", 1, 7710, "Piede, riga 2"),
    riga("txtPiede", 2, 7710, "Piede, riga 3"),
    etichetta("lblRiga", {7710, 4920, 3300, 720}, "Caratteri per riga"),
    {.tipo = Tipo::Bottone, .nome = "cmdMeno", .rett = {11220, 4920, 1200, 720}, .carattere = kSegno, .allineamento = kCentro, .testo = kInchiostro, .caption = "−", .nomeAccessibile = "Un carattere in meno"},
    {.tipo = Tipo::Etichetta, .nome = "lblCaratteri", .rett = {12420, 4920, 1200, 720}, .carattere = kGrassetto, .allineamento = kCentro, .testo = kInchiostro},
    {.tipo = Tipo::Bottone, .nome = "cmdPiu", .rett = {13620, 4920, 1200, 720}, .carattere = kSegno, .allineamento = kCentro, .testo = kInchiostro, .caption = "+", .nomeAccessibile = "Un carattere in più"},
    stile::bottone("cmdProva", {300, 5775, 3600, 750}, "Prova di stampa"),
    stile::bottone("cmdAnnulla", {7710, 5775, 3480, 750}, "Annulla"),
    stile::conferma("cmdSalva", {11340, 5775, 3480, 750}, "Salva"),
    {.tipo = Tipo::Riquadro, .nome = "picTastiera", .rett = {0, kTastiera, kLarghezza, kAltezza - kTastiera}, .sfondo = rgb(217, 224, 230)},
    {.tipo = Tipo::Tastiera, .nome = "tastiera", .padre = "picTastiera", .rett = {300, 60, 14520, kAltezza - kTastiera - 120}, .carattere = kTasti, .nomeAccessibile = "Tastiera"},
}};
// clang-format on
static_assert(layoutValido(kControlli));

} // namespace

const Layout kLayoutConfigurazioneFiscale{
    "frmConfiguraFiscale", "Impostazioni fiscali", kLarghezza, kAltezza, stile::kFondo, kControlli};

} // namespace lumigrafo
