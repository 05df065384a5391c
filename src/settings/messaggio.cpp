#include "settings/messaggio.h"

#include "platform/conversioni.h"
#include "settings/layout_messaggio.h"

#include <chrono>
#include <utility>

namespace lumigrafo {

using namespace std::chrono_literals;

namespace {

constexpr std::size_t kCaratteriInGrande = 50;
constexpr double kPuntiLungo = 14;

std::chrono::milliseconds durata(std::int16_t secondi) {
    return secondi > 0 ? std::chrono::milliseconds(prodotto16(secondi, 1000)) : 2000ms;
}

} // namespace

Messaggio::Messaggio(Timers& timers, const std::string& testo, std::int16_t secondi,
                     std::function<void()> chiudi)
    : controlli_(kLayoutMessaggio), chiudi_(std::move(chiudi)) {
    Controllo& lblMessaggio = controlli_("lblMessaggio");
    if (caratteri(testo) > kCaratteriInGrande)
        lblMessaggio.FontSize(kPuntiLungo);
    lblMessaggio.Caption(testo);
    Timer1_ = timers.crea(durata(secondi), [this] { chiudi_(); });
    Timer1_->abilita(true);
}

void Messaggio::clic(std::string_view nome) {
    if (nome == "lblMessaggio")
        chiudi_();
}

Splash::Splash(Timers& timers, std::function<void()> chiudi)
    : controlli_(kLayoutSplash), chiudi_(std::move(chiudi)),
      Timer_(timers.crea(2500ms, [this] { chiudi_(); })) {
    Timer_->abilita(true);
}

} // namespace lumigrafo
