#include "boards/lampeggio.h"

#include "platform/conversioni.h"

#include <utility>

namespace lumigrafo {

using namespace std::chrono_literals;

Lampeggio::Lampeggio(Timers& timers, Forma forma, const std::int16_t& numero, Fase fase)
    : forma_(forma), numero_(numero), fase_(std::move(fase)),
      timer_(timers.crea(300ms, [this] { scatto(); })) {}

void Lampeggio::avvia() {
    timer_->abilita(true);
    conta_ = 0;
}

void Lampeggio::fine() {
    fase_(true);
    conta_ = 0;
    timer_->abilita(false);
}

void Lampeggio::scatto() {
    if (conta_ > prodotto16(2, numero_)) {
        fine();
        if (forma_ == Forma::Diritta)
            return;
    }
    fase_(conta_ % 2 == 0);
    ++conta_;
}

} // namespace lumigrafo
