#pragma once

#include "forms/descrizione.h"

/// What the windows of settings have in common: calm colours, and type to be read at arm's length.
namespace lumigrafo::stile {

inline constexpr Colore kFondo = rgb(243, 245, 247);
inline constexpr Colore kCarta = kBianco;
inline constexpr Colore kTesto = rgb(31, 41, 51);
inline constexpr Colore kNota = rgb(82, 96, 109);
inline constexpr Colore kTitolo = rgb(31, 79, 128);
inline constexpr Colore kErrore = rgb(192, 24, 24);
/// The button that does what the window is for.
inline constexpr Colore kConferma = rgb(47, 109, 168);

inline constexpr Carattere kIntestazione{"Arial", 16, true};
inline constexpr Carattere kGruppo{"Arial", 11.25, true};
inline constexpr Carattere kEtichetta{"Arial", 11.25};
inline constexpr Carattere kCasella{"Arial", 13.5};
inline constexpr Carattere kBottone{"Arial", 13.5, true};

} // namespace lumigrafo::stile
