#pragma once

#include "forms/descrizione.h"

#include <array>
#include <string_view>

/// What the windows of settings have in common: calm colours, and type to be read at arm's length.
namespace lumigrafo::stile {

inline constexpr Colore kFondo = rgb(243, 245, 247);
inline constexpr Colore kCarta = kBianco;
inline constexpr Colore kTesto = rgb(31, 41, 51);
inline constexpr Colore kNota = rgb(82, 96, 109);
inline constexpr Colore kTitolo = rgb(31, 79, 128);
inline constexpr Colore kErrore = rgb(192, 24, 24);
inline constexpr Colore kConferma = rgb(47, 109, 168);

inline constexpr Carattere kIntestazione{"Arial", 16, true};
inline constexpr Carattere kGruppo{"Arial", 11.25, true};
inline constexpr Carattere kEtichetta{"Arial", 11.25};
inline constexpr Carattere kCasella{"Arial", 13.5};
inline constexpr Carattere kBottone{"Arial", 13.5, true};

/// The letter that presses the button of these words with Alt, the same in every window; 0 for other words.
[[nodiscard]] constexpr char sceltaDi(std::string_view caption) {
    struct Parola {
        std::string_view caption;
        char scelta;
    };
    constexpr std::array<Parola, 17> kParole{{{"Annulla", 'n'},
                                              {"OK", 'o'},
                                              {"Conferma", 'c'},
                                              {"Applica ed esci", 'a'},
                                              {"Salva", 's'},
                                              {"Uscita", 'u'},
                                              {"USCITA", 'u'},
                                              {"Chiudi", 'c'},
                                              {"Indietro", 'i'},
                                              {"Reset", 'r'},
                                              {"Cartella superiore", 's'},
                                              {"Scegli questa cartella", 'q'},
                                              {"Visualizza sul lumigrafo", 'v'},
                                              {"LEGGI", 'l'},
                                              {"Tastiera WINDOWS", 't'},
                                              {"Prova di stampa", 'p'},
                                              {"Ristampa", 'r'}}};
    for (const Parola& parola : kParole)
        if (parola.caption == caption)
            return parola.scelta;
    return 0;
}

/// A button of a window's foot.
[[nodiscard]] constexpr Descrizione bottone(std::string_view nome, Rettangolo rett,
                                            std::string_view caption) {
    return {.tipo = Tipo::Bottone,
            .nome = nome,
            .rett = rett,
            .carattere = kBottone,
            .allineamento = Allineamento::Centro,
            .testo = kTesto,
            .caption = caption,
            .scelta = sceltaDi(caption)};
}

/// The one that does what the window is for.
[[nodiscard]] constexpr Descrizione conferma(std::string_view nome, Rettangolo rett,
                                             std::string_view caption) {
    Descrizione d = bottone(nome, rett, caption);
    d.testo = kBianco;
    d.sfondo = kConferma;
    return d;
}

} // namespace lumigrafo::stile
