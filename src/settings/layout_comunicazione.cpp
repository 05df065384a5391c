#include "settings/layout_comunicazione.h"

#include "forms/verifica.h"
#include "settings/stile.h"

#include <array>

namespace lumigrafo {

namespace {

constexpr Twip kLarghezza = 15000;
constexpr Twip kAltezza = 10200;
constexpr Colore kMessaggioPronto = rgb(253, 247, 222);
constexpr Colore kInvio = rgb(221, 161, 60);
constexpr Carattere kTitolo{"Arial Black", 18};
constexpr Carattere kTesto{"Arial", 16};
constexpr Carattere kTasti{"Arial", 17};

constexpr Descrizione messaggioPronto(int indice, Twip top, std::string_view caption = {}) {
    return {.tipo = Tipo::Etichetta,
            .nome = "lblMessaggio",
            .indice = indice,
            .rett = {9900, top, 4800, 930},
            .carattere = stile::kEtichetta,
            .allineamento = Allineamento::Centro,
            .testo = stile::kTesto,
            .sfondo = kMessaggioPronto,
            .caption = caption,
            .cliccabile = true};
}

// clang-format off
constexpr std::array<Descrizione, 13> kControlli{{
    {.tipo = Tipo::Etichetta, .nome = "Label", .indice = 0, .rett = {300, 75, 9300, 615}, .carattere = kTitolo, .testo = stile::kTitolo, .caption = "Comunicazione"},
    {.tipo = Tipo::Righe, .nome = "txtComunicazione", .rett = {300, 750, 9450, 3030}, .carattere = kTesto, .testo = stile::kTesto, .sfondo = stile::kCarta, .nomeAccessibile = "Testo del messaggio"},
    messaggioPronto(0, 750),
    messaggioPronto(1, 1800, "C'è da spostare al più presto una  FIAT BIANCHINA targata EG 121 BT"),
    messaggioPronto(2, 2850),
    stile::conferma("cmdVisualizza", {300, 3930, 3900, 900}, "Visualizza sul lumigrafo"),
    stile::bottone("cmdLeggi", {4350, 3930, 1950, 900}, "LEGGI"),
    stile::bottone("cmdTastiera", {6450, 3930, 3300, 900}, "Tastiera WINDOWS"),
    {.tipo = Tipo::Riquadro, .nome = "Shape", .rett = {9900, 3930, 2325, 900}, .sfondo = kInvio},
    {.tipo = Tipo::Etichetta, .nome = "lblEnter", .rett = {9900, 3930, 2325, 900}, .carattere = stile::kBottone, .allineamento = Allineamento::Centro, .testo = stile::kTesto, .caption = "*  ENTER *", .cliccabile = true},
    stile::bottone("cmdUscita", {12375, 3930, 2325, 900}, "Uscita"),
    {.tipo = Tipo::Riquadro, .nome = "picTastiera", .rett = {0, 4980, kLarghezza, kAltezza - 4980}, .sfondo = rgb(226, 232, 238)},
    {.tipo = Tipo::Tastiera, .nome = "tastiera", .rett = {300, 5100, 14400, 4950}, .carattere = kTasti, .nomeAccessibile = "Tastiera"},
}};
// clang-format on
static_assert(layoutValido(kControlli));

} // namespace

const Layout kLayoutComunicazione{"frmComunicazione", "Comunicazione", kLarghezza,
                                  kAltezza,           stile::kFondo,   kControlli};

} // namespace lumigrafo
