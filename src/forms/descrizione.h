#pragma once

#include "platform/colore.h"
#include "platform/misure.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

/// Windows as tables: a constexpr row a control, in twips as drawn at the design, in order of creation, which
/// is the order from back to front.
namespace lumigrafo {

enum class Tipo : std::uint8_t {
    Etichetta, ///< text
    Riquadro,  ///< plain box that can hold others
    Cornice,   ///< box shaded from `sfumatura1` to `sfumatura2`
    Immagine,  ///< a picture from the resources
    Bottone,   ///< push button with a text, a picture or both
    Casella,   ///< text box
    Righe,     ///< text box of several lines, with a scroll bar; line ends of its caption are CR LF
    Tastiera,  ///< on-screen keyboard that types into the box with the focus
    Numerica,  ///< its form with digits alone
    Griglia,   ///< grid of text cells
    Linea,     ///< rule
    Combo,     ///< drop-down list of which one item is chosen
    Lista,     ///< list of which one item is chosen
    Spunta,    ///< check box
    Cursore,   ///< slider
    Gruppo,    ///< box with a title that holds others
};

enum class Allineamento : std::uint8_t { Sinistra, Centro, Destra };

/// A font as the design names it; sizes are points at the window's design size.
struct Carattere {
    std::string_view nome = "Arial";
    double dimensione = 9.75;
    bool grassetto = false;
    bool corsivo = false;
};

/// What a slider runs over, and its steps: by an arrow key, and by a touch beside its knob.
struct Corsa {
    int minimo = 0, massimo = 100;
    int piccolo = 1, grande = 5;
};

inline constexpr int kSenzaIndice = -1;

/// One control of a window.
struct Descrizione {
    Tipo tipo = Tipo::Etichetta;
    std::string_view nome{};
    int indice = kSenzaIndice; ///< place in its control array
    std::string_view padre{};  ///< `nome` or `nome(indice)` of the container; empty: the window
    Rettangolo rett{};         ///< within the container
    Carattere carattere{};
    Allineamento allineamento = Allineamento::Sinistra;
    Colore testo = kNero;
    std::optional<Colore> sfondo{}; ///< none: transparent
    std::string_view caption{};
    bool visibile = true;
    std::string_view figura{};          ///< picture in the resources, by its file name without ".svg"
    std::string_view nomeAccessibile{}; ///< where the caption doesn't say it
    bool cliccabile = false;            ///< a label, box or picture that takes clicks
    bool inAlto = false;                ///< a label's line stands at its top, not at the middle of its height
    Twip margine{};                     ///< left free at each side of a label's text
    bool quota = false; ///< a button says in its corner how much smaller than its size the text had to be
    int lunghezzaMassima = 0; ///< characters that a text box holds, a longer text's first; 0: no limit
    Corsa corsa{};            ///< of a slider; of a label that shows fonts, from above 0: their sizes
    char scelta = 0; ///< small letter of the caption, underlined; presses a button or a box with Alt; 0: none
};

/// One window.
struct Layout {
    std::string_view nome;
    std::string_view titolo;
    Twip larghezza, altezza; ///< client size at the design
    Colore sfondo = kNero;
    std::span<const Descrizione> controlli;
};

} // namespace lumigrafo
