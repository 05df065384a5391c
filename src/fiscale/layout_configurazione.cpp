#include "fiscale/layout.h"
#include "forms/verifica.h"

#include <array>

namespace lumigrafo {

namespace {

constexpr Carattere kTitolo{"Arial", 18, true};
constexpr Carattere kTesto{"Arial", 13};
constexpr Carattere kGrassetto{"Arial", 13, true};
constexpr Carattere kMinuto{"Arial", 11};
constexpr Carattere kSegno{"Arial", 20, true};
constexpr Colore kInchiostro = rgb(31, 41, 51);
constexpr Colore kGrigio = rgb(96, 110, 124);
constexpr Colore kCarta = rgb(255, 255, 255);
constexpr auto kCentro = Allineamento::Centro;

// clang-format off
constexpr std::array<Descrizione, 28> kControlli{{
    {.tipo = Tipo::Immagine, .nome = "imgScontrino", .padre = "", .rett = {300, 150, 780, 780}, .figura = "scontrino"},
    {.tipo = Tipo::Etichetta, .nome = "lblTitolo", .padre = "", .rett = {1230, 150, 9000, 780}, .carattere = kTitolo, .testo = kInchiostro, .caption = "Impostazioni fiscali"},
    {.tipo = Tipo::Bottone, .nome = "cmdDriver", .indice = 0, .padre = "", .rett = {300, 1080, 2640, 840}, .carattere = kGrassetto, .allineamento = kCentro, .caption = "File di testo"},
    {.tipo = Tipo::Bottone, .nome = "cmdDriver", .indice = 1, .padre = "", .rett = {3060, 1080, 2640, 840}, .carattere = kGrassetto, .allineamento = kCentro, .caption = "Rete"},
    {.tipo = Tipo::Bottone, .nome = "cmdDriver", .indice = 2, .padre = "", .rett = {5820, 1080, 2640, 840}, .carattere = kGrassetto, .allineamento = kCentro, .caption = "Dispositivo"},
    {.tipo = Tipo::Bottone, .nome = "cmdDriver", .indice = 3, .padre = "", .rett = {8580, 1080, 2640, 840}, .carattere = kGrassetto, .allineamento = kCentro, .caption = "Coda di stampa"},
    {.tipo = Tipo::Bottone, .nome = "cmdDriver", .indice = 4, .padre = "", .rett = {11340, 1080, 2760, 840}, .carattere = kGrassetto, .allineamento = kCentro, .caption = "Programma"},
    {.tipo = Tipo::Etichetta, .nome = "lblIndirizzo", .padre = "", .rett = {300, 2100, 1800, 720}, .carattere = kGrassetto, .testo = kInchiostro},
    {.tipo = Tipo::Casella, .nome = "txtIndirizzo", .padre = "", .rett = {2100, 2100, 7800, 720}, .carattere = kTesto, .testo = kInchiostro, .sfondo = kCarta, .nomeAccessibile = "Indirizzo"},
    {.tipo = Tipo::Bottone, .nome = "cmdStato", .padre = "", .rett = {10080, 2100, 4020, 720}, .carattere = kTesto, .allineamento = kCentro},
    {.tipo = Tipo::Etichetta, .nome = "lblAiuto", .padre = "", .rett = {2100, 2850, 12000, 390}, .carattere = kMinuto, .testo = kGrigio},
    {.tipo = Tipo::Etichetta, .nome = "lblRiga", .padre = "", .rett = {300, 3420, 3600, 720}, .carattere = kGrassetto, .testo = kInchiostro, .caption = "Caratteri per riga"},
    {.tipo = Tipo::Bottone, .nome = "cmdMeno", .padre = "", .rett = {3960, 3420, 1200, 720}, .carattere = kSegno, .allineamento = kCentro, .caption = "−", .nomeAccessibile = "Un carattere in meno"},
    {.tipo = Tipo::Etichetta, .nome = "lblCaratteri", .padre = "", .rett = {5160, 3420, 1200, 720}, .carattere = kTitolo, .allineamento = kCentro, .testo = kInchiostro},
    {.tipo = Tipo::Bottone, .nome = "cmdPiu", .padre = "", .rett = {6360, 3420, 1200, 720}, .carattere = kSegno, .allineamento = kCentro, .caption = "+", .nomeAccessibile = "Un carattere in più"},
    {.tipo = Tipo::Etichetta, .nome = "lblIntestazione", .padre = "", .rett = {300, 4350, 6720, 420}, .carattere = kGrassetto, .testo = kInchiostro, .caption = "Intestazione dello scontrino"},
    {.tipo = Tipo::Casella, .nome = "txtIntestazione", .indice = 0, .padre = "", .rett = {300, 4830, 6720, 720}, .carattere = kTesto, .allineamento = kCentro, .testo = kInchiostro, .sfondo = kCarta, .nomeAccessibile = "Intestazione, riga 1"},
    {.tipo = Tipo::Casella, .nome = "txtIntestazione", .indice = 1, .padre = "", .rett = {300, 5640, 6720, 720}, .carattere = kTesto, .allineamento = kCentro, .testo = kInchiostro, .sfondo = kCarta, .nomeAccessibile = "Intestazione, riga 2"},
    {.tipo = Tipo::Casella, .nome = "txtIntestazione", .indice = 2, .padre = "", .rett = {300, 6450, 6720, 720}, .carattere = kTesto, .allineamento = kCentro, .testo = kInchiostro, .sfondo = kCarta, .nomeAccessibile = "Intestazione, riga 3"},
    {.tipo = Tipo::Casella, .nome = "txtIntestazione", .indice = 3, .padre = "", .rett = {300, 7260, 6720, 720}, .carattere = kTesto, .allineamento = kCentro, .testo = kInchiostro, .sfondo = kCarta, .nomeAccessibile = "Intestazione, riga 4"},
    {.tipo = Tipo::Etichetta, .nome = "lblPiede", .padre = "", .rett = {7380, 4350, 6720, 420}, .carattere = kGrassetto, .testo = kInchiostro, .caption = "Piede dello scontrino"},
    {.tipo = Tipo::Casella, .nome = "txtPiede", .indice = 0, .padre = "", .rett = {7380, 4830, 6720, 720}, .carattere = kTesto, .allineamento = kCentro, .testo = kInchiostro, .sfondo = kCarta, .nomeAccessibile = "Piede, riga 1"},
    {.tipo = Tipo::Casella, .nome = "txtPiede", .indice = 1, .padre = "", .rett = {7380, 5640, 6720, 720}, .carattere = kTesto, .allineamento = kCentro, .testo = kInchiostro, .sfondo = kCarta, .nomeAccessibile = "Piede, riga 2"},
    {.tipo = Tipo::Casella, .nome = "txtPiede", .indice = 2, .padre = "", .rett = {7380, 6450, 6720, 720}, .carattere = kTesto, .allineamento = kCentro, .testo = kInchiostro, .sfondo = kCarta, .nomeAccessibile = "Piede, riga 3"},
    {.tipo = Tipo::Linea, .nome = "linea", .padre = "", .rett = {300, 8220, 13800, 15}, .testo = rgb(208, 216, 224)},
    {.tipo = Tipo::Bottone, .nome = "cmdProva", .padre = "", .rett = {300, 8460, 3600, 900}, .carattere = kGrassetto, .allineamento = kCentro, .caption = "Prova di stampa"},
    {.tipo = Tipo::Bottone, .nome = "cmdAnnulla", .padre = "", .rett = {6720, 8460, 3600, 900}, .carattere = kGrassetto, .allineamento = kCentro, .caption = "Annulla"},
    {.tipo = Tipo::Bottone, .nome = "cmdSalva", .padre = "", .rett = {10500, 8460, 3600, 900}, .carattere = kGrassetto, .allineamento = kCentro, .testo = kCarta, .sfondo = rgb(47, 109, 168), .caption = "Salva"},
}};
// clang-format on
static_assert(layoutValido(kControlli));

} // namespace

const Layout kLayoutConfigurazioneFiscale{
    "frmConfiguraFiscale", "Impostazioni fiscali", 14400, 9570, rgb(236, 240, 244), kControlli};

} // namespace lumigrafo
