#include "console/layout_frmGestione.h"

#include "forms/verifica.h"

#include <array>

namespace lumigrafo {

namespace {

constexpr Colore kSfondoConsole = rgb(236, 240, 245);
constexpr Colore kRosaReparto = rgb(255, 192, 192);
constexpr Colore kAzzurroNumero = rgb(207, 228, 254);
constexpr Colore kBluNumero = rgb(0, 0, 255);
constexpr Colore kTestoQuieto = rgb(70, 82, 100);
constexpr Colore kPannello = rgb(52, 64, 84);

constexpr Carattere kCella{"Arial", 18, true};
constexpr Carattere kReparto{"Arial Black", 18};
constexpr Carattere kNumero{"Arial", 16, true};
constexpr Carattere kPezzi{"Arial", 12};
constexpr Carattere kComando{"Arial", 13, true};
constexpr Carattere kPrecedente{"Arial", 18, true};
constexpr Carattere kStato{"Arial", 12};

constexpr auto E = Tipo::Etichetta;
constexpr auto B = Tipo::Bottone;
constexpr auto R = Tipo::Riquadro;
constexpr auto C = Allineamento::Centro;
constexpr auto S = Allineamento::Sinistra;
constexpr auto N = kSenzaIndice;

// clang-format off
constexpr std::array kControlli = {
    Descrizione{E, "lblReparto", 0, "", {   45, 15, 5805, 585}, kReparto, C, kNero, kRosaReparto},
    Descrizione{E, "lblReparto", 1, "", { 6030, 15, 5805, 585}, kReparto, C, kNero, kRosaReparto},
    Descrizione{E, "lblReparto", 2, "", {12030, 15, 5805, 585}, kReparto, C, kNero, kRosaReparto},
    Descrizione{R, "picInfo", 0, "", {   45, 615, 5805, 390}, {}, S, kNero, kSfondoConsole, "", true, "", "Allarga la griglia 1", true},
    Descrizione{R, "picInfo", 1, "", { 6030, 615, 5805, 390}, {}, S, kNero, kSfondoConsole, "", true, "", "Allarga la griglia 2", true},
    Descrizione{R, "picInfo", 2, "", {12030, 615, 5805, 390}, {}, S, kNero, kSfondoConsole, "", true, "", "Allarga la griglia 3", true},
    Descrizione{E, "lblPezz", 0, "picInfo(0)", {60, 30, 1700, 330}, kPezzi, S, kTestoQuieto, {}, "Numero pezzi:", true, "", "", true},
    Descrizione{E, "lblPezz", 1, "picInfo(1)", {60, 30, 1700, 330}, kPezzi, S, kTestoQuieto, {}, "Numero pezzi:", true, "", "", true},
    Descrizione{E, "lblPezz", 2, "picInfo(2)", {60, 30, 1700, 330}, kPezzi, S, kTestoQuieto, {}, "Numero pezzi:", true, "", "", true},
    Descrizione{E, "lblPezzi", 0, "picInfo(0)", {1800, 30, 3600, 330}, kPezzi, S, kNero},
    Descrizione{E, "lblPezzi", 1, "picInfo(1)", {1800, 30, 3600, 330}, kPezzi, S, kNero},
    Descrizione{E, "lblPezzi", 2, "picInfo(2)", {1800, 30, 3600, 330}, kPezzi, S, kNero},
    Descrizione{Tipo::Griglia, "grid", 0, "", {   30, 1020, 5835, 7800}, kCella, C, kNero, kBianco, "", true, "", "Ordini del reparto 1"},
    Descrizione{Tipo::Griglia, "grid", 1, "", { 6015, 1020, 5835, 7800}, kCella, C, kNero, kBianco, "", true, "", "Ordini del reparto 2"},
    Descrizione{Tipo::Griglia, "grid", 2, "", {12015, 1020, 5835, 7800}, kCella, C, kNero, kBianco, "", true, "", "Ordini del reparto 3"},
    Descrizione{E, "lblNumero", 0, "", {  795, 8865, 3870, 420}, kNumero, C, kBluNumero, kAzzurroNumero, "", true, "", "Ultimo numero chiamato, reparto 1", true},
    Descrizione{E, "lblNumero", 1, "", { 6705, 8865, 3870, 420}, kNumero, C, kBluNumero, kAzzurroNumero, "", true, "", "Ultimo numero chiamato, reparto 2", true},
    Descrizione{E, "lblNumero", 2, "", {12705, 8880, 3870, 420}, kNumero, C, kBluNumero, kAzzurroNumero, "", true, "", "Ultimo numero chiamato, reparto 3", true},
    Descrizione{B, "cmdNumero", 0, "", { 4665, 8850, 1185, 900}, kComando, C, kNero, {}, "", true, "numero", "Numeri precedenti, reparto 1"},
    Descrizione{B, "cmdNumero", 1, "", {10575, 8850, 1185, 900}, kComando, C, kNero, {}, "", true, "numero", "Numeri precedenti, reparto 2"},
    Descrizione{B, "cmdNumero", 2, "", {16575, 8850, 1185, 900}, kComando, C, kNero, {}, "", true, "numero", "Numeri precedenti, reparto 3"},

    Descrizione{B, "cmdAllarga", N, "", {17925, 15, 990, 990}, kComando, C, kNero, {}, "", true, "allarga", "Apri i comandi"},
    Descrizione{B, "cmdRiavvia", N, "", {16440, 9795, 2475, 810}, kComando, C, kNero, {}, "RIAVVIA", true, "riavvia"},
    Descrizione{B, "cmdModalita", 1, "", {12705, 9795, 3645, 810}, kComando, C, kNero, {}, "Modalità lumigrafo", true, "modalita"},
    Descrizione{Tipo::Casella, "txtBarCode", N, "", {9180, 9840, 3435, 720}, {"Arial", 16, true}, S, kNero, kBianco, "", true, "", "Codice a barre dello scontrino"},
    Descrizione{E, "lblNumCasse", N, "", {60, 9750, 9000, 390}, {"Arial", 14, true}, S, kTestoQuieto},
    Descrizione{E, "lblDB", N, "", {60, 10200, 9000, 345}, kStato, S, kTestoQuieto, {}, "", true, "", "Archivio in uso"},
    Descrizione{B, "cmdAvanti", N, "", {0, 7380, 5835, 1425}, {"Arial Black", 30}, C, kBianco, rgb(46, 125, 80), "PROSSIMO NUMERO", false},

    Descrizione{R, "fraNumeri", N, "", {795, 2385, 3870, 6450}, {}, S, kNero, kPannello, "", false},
    Descrizione{E, "lblNumeroPrec", 7, "fraNumeri", {90,   90, 3690, 735}, kPrecedente, C, kBluNumero, kAzzurroNumero, "", true, "", "Ottavo numero precedente", true},
    Descrizione{E, "lblNumeroPrec", 6, "fraNumeri", {90,  885, 3690, 735}, kPrecedente, C, kBluNumero, kAzzurroNumero, "", true, "", "Settimo numero precedente", true},
    Descrizione{E, "lblNumeroPrec", 5, "fraNumeri", {90, 1680, 3690, 735}, kPrecedente, C, kBluNumero, kAzzurroNumero, "", true, "", "Sesto numero precedente", true},
    Descrizione{E, "lblNumeroPrec", 4, "fraNumeri", {90, 2475, 3690, 735}, kPrecedente, C, kBluNumero, kAzzurroNumero, "", true, "", "Quinto numero precedente", true},
    Descrizione{E, "lblNumeroPrec", 3, "fraNumeri", {90, 3270, 3690, 735}, kPrecedente, C, kBluNumero, kAzzurroNumero, "", true, "", "Quarto numero precedente", true},
    Descrizione{E, "lblNumeroPrec", 2, "fraNumeri", {90, 4065, 3690, 735}, kPrecedente, C, kBluNumero, kAzzurroNumero, "", true, "", "Terzo numero precedente", true},
    Descrizione{E, "lblNumeroPrec", 1, "fraNumeri", {90, 4860, 3690, 735}, kPrecedente, C, kBluNumero, kAzzurroNumero, "", true, "", "Penultimo numero", true},
    Descrizione{E, "lblNumeroPrec", 0, "fraNumeri", {90, 5655, 3690, 735}, kPrecedente, C, kBluNumero, kAzzurroNumero, "", true, "", "Ultimo numero", true},

    Descrizione{R, "fraBottoni", N, "", {9000, 1080, 9915, 4890}, {}, S, kNero, kPannello, "", false, "", "Comandi", true},
    Descrizione{B, "cmdChiudi",             N, "fraBottoni", {8745,  150, 1020, 1020}, kComando, C, kNero, {}, "", true, "chiudi", "Chiudi i comandi"},
    Descrizione{B, "cmdSpegni",             N, "fraBottoni", {7560,  150, 1020, 1020}, kComando, C, kNero, {}, "", true, "spegni", "Spegni il computer"},
    Descrizione{B, "cmdModalita",           0, "fraBottoni", { 150,  150, 3540, 1020}, kComando, C, kNero, {}, "Modalità lumigrafo", true, "modalita"},
    Descrizione{B, "cmdAggiorna",           N, "fraBottoni", {3855,  150, 3540, 1020}, kComando, C, kNero, {}, "Aggiorna griglie", true, "aggiorna"},
    Descrizione{B, "cmdLumigrafo",          N, "fraBottoni", { 150, 1335, 4725, 1020}, kComando, C, kNero, {}, "Visualizza lumigrafo", true, "lumigrafo"},
    Descrizione{B, "cmdPosizionaLumigrafo", N, "fraBottoni", {5040, 1335, 4725, 1020}, kComando, C, kNero, {}, "Posiziona lumigrafo", true, "posiziona"},
    Descrizione{B, "cmdPulisciLumigrafo",   N, "fraBottoni", { 150, 2520, 4725, 1020}, kComando, C, kNero, {}, "Azzera lumigrafo (lato clienti)", true, "pulisci"},
    Descrizione{B, "cmdRipristina",         N, "fraBottoni", {5040, 2520, 4725, 1020}, kComando, C, kNero, {}, "Ripristino numero", true, "ripristina"},
    Descrizione{B, "cmdComunicazione",      N, "fraBottoni", { 150, 3705, 4725, 1020}, kComando, C, kNero, {}, "Comunicazione", true, "comunicazione"},
    Descrizione{B, "cmdUscita",             N, "fraBottoni", {5040, 3705, 4725, 1020}, kComando, C, kNero, {}, "USCITA", true, "esci"},

    Descrizione{R, "fraMessaggio", N, "", {300, 1200, 18300, 9000}, {}, S, kNero, rgb(128, 255, 128), "", false},
    Descrizione{Tipo::Immagine, "picOk", N, "fraMessaggio", {360, 360, 2400, 2400}, {}, S, kNero, {}, "", true, "ok", "Riuscito"},
    Descrizione{Tipo::Immagine, "picErrore", N, "fraMessaggio", {360, 3900, 2400, 2400}, {}, S, kNero, {}, "", false, "errore", "Errore"},
    Descrizione{E, "lblMessaggioBarCode", N, "fraMessaggio", {0, 2400, 18300, 5400}, {"Arial", 80, true}, C, kNero},
};
// clang-format on
static_assert(layoutValido(kControlli));

} // namespace

const Layout kLayout_frmGestione{"frmGestione", "Lumigrafo", 18960, 10665, kSfondoConsole, kControlli};

} // namespace lumigrafo
