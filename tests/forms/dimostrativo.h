#pragma once

#include "forms/descrizione.h"

/// A small window with one control of each kind, as the tests use it.
namespace lumigrafo::dimostrativo {

// clang-format off
inline constexpr Carattere kTitolo{"Arial", 32.25, true, true};
inline constexpr Carattere kReparto{"Arial Black", 22};
inline constexpr Carattere kNumero{"Arial Narrow", 100, true};
inline constexpr Carattere kCella{"Arial", 18, true};
inline constexpr Carattere kComando{"Arial", 12, true};

inline constexpr Descrizione kControlli[] = {
    {.tipo = Tipo::Etichetta, .nome = "lblTitolo", .rett = {75, 60, 14490, 705}, .carattere = kTitolo,
     .allineamento = Allineamento::Centro, .testo = kBianco, .caption = "STIAMO SERVENDO I NUMERI"},
    {.tipo = Tipo::Cornice, .nome = "picPannello", .indice = 0, .rett = {30, 930, 9000, 3000}, .sfondo = rgb(20, 60, 110)},
    {.tipo = Tipo::Riquadro, .nome = "picNumero", .indice = 0, .padre = "picPannello(0)", .rett = {200, 150, 4590, 2505},
     .sfondo = rgb(30, 90, 165), .cliccabile = true},
    {.tipo = Tipo::Etichetta, .nome = "lblNumero3", .indice = 0, .padre = "picNumero(0)", .rett = {0, 0, 4590, 2505},
     .carattere = kNumero, .allineamento = Allineamento::Centro, .testo = kBianco, .caption = "A 12"},
    {.tipo = Tipo::Etichetta, .nome = "lblNumero3", .indice = 1, .padre = "picPannello(0)", .rett = {5000, 150, 3900, 2505},
     .carattere = kNumero, .allineamento = Allineamento::Centro, .testo = kGiallo, .caption = "A 99999"},
    {.tipo = Tipo::Linea, .nome = "Line", .indice = 0, .padre = "picPannello(0)", .rett = {135, 2800, 8700, 3}, .testo = kBianco},
    {.tipo = Tipo::Etichetta, .nome = "lblReparto", .indice = 0, .rett = {30, 4100, 5805, 585}, .carattere = kReparto,
     .allineamento = Allineamento::Centro, .sfondo = rgb(255, 192, 192), .caption = "CUCINA", .cliccabile = true},
    {.tipo = Tipo::Griglia, .nome = "grid", .indice = 0, .rett = {30, 4800, 5835, 5400}, .carattere = kCella,
     .nomeAccessibile = "Ordini"},
    {.tipo = Tipo::Bottone, .nome = "cmdAggiorna", .rett = {6200, 4800, 3000, 900}, .carattere = kComando,
     .caption = "AGGIORNA", .figura = "prova"},
    {.tipo = Tipo::Bottone, .nome = "cmdSpegni", .rett = {6200, 5850, 1450, 1500}, .carattere = kComando,
     .caption = "SPEGNI", .figura = "prova"},
    {.tipo = Tipo::Bottone, .nome = "cmdNumero", .indice = 0, .rett = {7750, 5850, 1450, 1500}, .carattere = kComando,
     .sfondo = rgb(207, 228, 254), .caption = "C & D"},
    {.tipo = Tipo::Casella, .nome = "txtBarCode", .rett = {6200, 7500, 3000, 700}, .carattere = kComando,
     .nomeAccessibile = "Codice", .lunghezzaMassima = 13},
    {.tipo = Tipo::Immagine, .nome = "picLogo", .rett = {9600, 930, 3000, 3000}, .figura = "prova"},
    {.tipo = Tipo::Etichetta, .nome = "lblMessaggio", .rett = {9600, 4100, 5400, 3000}, .carattere = {"Arial", 24, true},
     .allineamento = Allineamento::Centro, .sfondo = kBianco,
     .caption = "Attenzione: ritirare il piatto al banco, grazie", .visibile = false},
    {.tipo = Tipo::Gruppo, .nome = "fraOpzioni", .rett = {9600, 7200, 5400, 3000}, .caption = "Opzioni"},
    {.tipo = Tipo::Combo, .nome = "cboTipo", .padre = "fraOpzioni", .rett = {150, 450, 2400, 720}},
    {.tipo = Tipo::Lista, .nome = "lstFont", .padre = "fraOpzioni", .rett = {2700, 450, 2400, 2400}},
    {.tipo = Tipo::Spunta, .nome = "chkVocale", .padre = "fraOpzioni", .rett = {150, 1200, 2400, 720}, .caption = "Pronuncia", .scelta = 'p'},
    {.tipo = Tipo::Cursore, .nome = "sldVelocita", .padre = "fraOpzioni", .rett = {150, 1950, 2400, 720}, .corsa = {-10, 10, 1, 5}},
};
// clang-format on

inline constexpr Layout kLayout{"frmProva", "Prova", 15120, 10395, rgb(16, 24, 32), kControlli};

} // namespace lumigrafo::dimostrativo
