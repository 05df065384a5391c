#include "data/jet/precedenza.h"

#include "data/jet/pazienza.h"

#include <algorithm>

namespace lumigrafo::jet {

Precedenza::Turno::Turno(Precedenza& precedenza) : precedenza_(precedenza) {
    if (precedenza_.turni_++ == 0)
        precedenza_.inizio_ = std::chrono::steady_clock::now();
}

Precedenza::Turno::~Turno() {
    if (--precedenza_.turni_ == 0 && precedenza_.stazione_)
        precedenza_.stazione_->rendiPrecedenza();
}

void Precedenza::insisti(bool legge) {
    if (!stazione_)
        return;
    const auto dura = std::chrono::steady_clock::now() - inizio_;
    if (legge && dura > kTurnoLungo + kMassima)
        stazione_->rendiPrecedenza();
    else if (dura > kTurnoLungo)
        (void)stazione_->chiediPrecedenza(); // another one that asks for it goes first
}

void Precedenza::lascia(std::chrono::milliseconds alMassimo) {
    if (!stazione_)
        return;
    Pazienza pazienza(std::min(kMassima, alMassimo));
    while (stazione_->precedeUnAltra()) {
        impaziente_ = impaziente_ || !pazienza.ancora();
        if (impaziente_) // up to the next precedence: that station may have stopped
            return;
        pazienza.attendi();
    }
    impaziente_ = false;
}

} // namespace lumigrafo::jet
