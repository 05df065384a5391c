#pragma once

#include "forms/controlli.h"
#include "settings/stile.h"

#include <array>
#include <string_view>

/// The on-screen keyboard of a window that has no room to spare for it: a panel over its foot, there while a
/// text box has the focus.
namespace lumigrafo {

/// The panel `picTastiera` with the keyboard and the button that takes it away.
[[nodiscard]] constexpr std::array<Descrizione, 3> pannelloTastiera(Rettangolo rett) {
    constexpr double kMargine = 60, kBottone = 1500;
    const double alta = rett.height.v - 2 * kMargine, larga = rett.width.v - 3 * kMargine - kBottone;
    return {{
        {.tipo = Tipo::Riquadro,
         .nome = "picTastiera",
         .rett = rett,
         .sfondo = rgb(217, 224, 230),
         .visibile = false},
        {.tipo = Tipo::Tastiera,
         .nome = "tastiera",
         .padre = "picTastiera",
         .rett = {kMargine, kMargine, larga, alta},
         .carattere = stile::kCasella,
         .nomeAccessibile = "Tastiera"},
        {.tipo = Tipo::Bottone,
         .nome = "cmdNascondiTastiera",
         .padre = "picTastiera",
         .rett = {larga + 2 * kMargine, kMargine, kBottone, alta},
         .carattere = stile::kGruppo,
         .testo = stile::kTesto,
         .caption = "Chiudi tastiera"},
    }};
}

/// The focus went to the control of that name: the panel is there for text boxes alone.
inline void seguiFuoco(Controlli& controlli, std::string_view nome) {
    controlli("picTastiera").Visible(nome.starts_with("txt"));
}

} // namespace lumigrafo
