#include "fiscale/layout.h"
#include "forms/verifica.h"
#include "settings/stile.h"

#include <array>

namespace lumigrafo {

namespace {

constexpr Carattere kTitolo{"Arial", 18, true};
constexpr Carattere kTesto{"Arial", 13};
constexpr Carattere kGrassetto{"Arial", 13, true};
constexpr Colore kInchiostro = rgb(31, 41, 51);
constexpr Colore kGrigio = rgb(96, 110, 124);
constexpr Colore kCarta = rgb(255, 255, 255);

// clang-format off
constexpr std::array<Descrizione, 13> kControlli{{
    {.tipo = Tipo::Immagine, .nome = "imgScontrino", .padre = "", .rett = {300, 210, 780, 780}, .figura = "scontrino"},
    {.tipo = Tipo::Etichetta, .nome = "lblTitolo", .padre = "", .rett = {1230, 210, 9000, 780}, .carattere = kTitolo, .testo = kInchiostro, .caption = "Utilità fiscali"},
    {.tipo = Tipo::Riquadro, .nome = "fraStato", .padre = "", .rett = {300, 1170, 13800, 900}, .sfondo = kCarta},
    {.tipo = Tipo::Riquadro, .nome = "fraSpia", .padre = "fraStato", .rett = {240, 270, 360, 360}, .sfondo = kGrigio},
    {.tipo = Tipo::Etichetta, .nome = "lblStato", .padre = "fraStato", .rett = {840, 60, 10020, 780}, .carattere = kGrassetto, .testo = kInchiostro},
    {.tipo = Tipo::Bottone, .nome = "cmdAggiorna", .padre = "fraStato", .rett = {11100, 75, 2550, 750}, .carattere = kGrassetto, .allineamento = Allineamento::Centro, .testo = kInchiostro, .caption = "Aggiorna", .scelta = 'a'},
    {.tipo = Tipo::Etichetta, .nome = "lblUltimi", .padre = "", .rett = {300, 2220, 9000, 450}, .carattere = kGrassetto, .testo = kGrigio, .caption = "Ultimi scontrini"},
    {.tipo = Tipo::Griglia, .nome = "gridScontrini", .padre = "", .rett = {300, 2700, 13800, 4650}, .carattere = kTesto, .testo = kInchiostro, .sfondo = kCarta},
    {.tipo = Tipo::Etichetta, .nome = "lblVuoto", .padre = "", .rett = {600, 4500, 13200, 900}, .carattere = kTesto, .allineamento = Allineamento::Centro, .testo = kGrigio, .caption = "Nessuno scontrino ancora", .visibile = false},
    {.tipo = Tipo::Etichetta, .nome = "lblDettaglio", .padre = "", .rett = {300, 7440, 13800, 810}, .carattere = kTesto, .testo = kInchiostro},
    {.tipo = Tipo::Linea, .nome = "linea", .padre = "", .rett = {300, 8340, 13800, 15}, .testo = rgb(217, 224, 230)},
    stile::bottone("cmdRistampa", {300, 8520, 3600, 900}, "Ristampa"),
    stile::bottone("cmdChiudi", {10500, 8520, 3600, 900}, "Chiudi"),
}};
// clang-format on
static_assert(layoutValido(kControlli));

} // namespace

const Layout kLayoutUtilitaFiscale{"frmUtilitaFiscale", "Utilità fiscali", 14400, 9630,
                                   stile::kFondo,       kControlli};

} // namespace lumigrafo
