#include "strumenti/schermo/arrivo.h"

namespace lumigrafo::schermo {

Arrivo::Stato Arrivo::prendi(std::string_view pezzo) {
    for (std::size_t i = 0; i < pezzo.size() && stato_ == Stato::InCorso; ++i) {
        if (testo_.size() == kMassimo || !segui(pezzo[i])) {
            stato_ = Stato::Rifiutato;
            testo_ = {};
        } else {
            testo_ += pezzo[i];
        }
    }
    return stato_;
}

bool Arrivo::segui(char c) {
    if (inStringa_) {
        if (c == '"' && !dopoBarra_)
            inStringa_ = false;
        dopoBarra_ = c == '\\' && !dopoBarra_;
        return true;
    }
    switch (c) {
    case '{':
    case '[':
        ++aperte_;
        return aperte_ > 1 || c == '{';
    case '}':
    case ']':
        if (aperte_ > 0 && --aperte_ == 0)
            stato_ = Stato::Intero;
        return stato_ == Stato::Intero || aperte_ > 0;
    case ' ':
    case '\t':
    case '\r':
    case '\n':
        return true;
    default:
        inStringa_ = c == '"';
        return aperte_ > 0;
    }
}

} // namespace lumigrafo::schermo
