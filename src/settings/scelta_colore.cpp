#include "settings/scelta_colore.h"

#include "settings/layout_colore.h"

#include <utility>

namespace lumigrafo {

SceltaColore::SceltaColore(ColoriScelti& colori, std::function<void()> chiudi)
    : colori_(colori), chiudi_(std::move(chiudi)), controlli_(kLayoutColore),
      sfondo_(colori.ColoreSfondoScelto), testo_(colori.ColoreTestoScelto) {
    controlli_("lblAnteprima").BackColor(sfondo_);
    controlli_("lblAnteprima").ForeColor(testo_);
}

void SceltaColore::clic(std::string_view nome, int indice) {
    Controllo& lblAnteprima = controlli_("lblAnteprima");
    if (nome == "picColore") {
        sfondo_ = *controlli_(nome, indice).BackColor();
        lblAnteprima.BackColor(sfondo_);
    } else if (nome == "picColoreTesto") {
        testo_ = *controlli_(nome, indice).BackColor();
        lblAnteprima.ForeColor(testo_);
    } else if (nome == "cmdOk") {
        colori_ = {sfondo_.v, testo_.v};
        chiudi_();
    }
}

} // namespace lumigrafo
