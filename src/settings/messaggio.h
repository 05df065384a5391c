#pragma once

#include "forms/controlli.h"
#include "platform/timer.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace lumigrafo {

/// The timed message, `frmMessaggio`, while it is on show.
class Messaggio {
public:
    /// The load. `secondi` above 0 is how long it stays; else 2 seconds. Above 32 throws Guasto 6. `chiudi`
    /// is called at each tick and each click that ends it; it lets the caller go on, and must not destroy
    /// this object.
    Messaggio(Timers& timers, const std::string& testo, std::int16_t secondi, std::function<void()> chiudi);

    [[nodiscard]] Controlli& controlli() { return controlli_; }
    void clic(std::string_view nome);

private:
    Controlli controlli_;
    std::function<void()> chiudi_;
    std::unique_ptr<Timer> Timer1_;
};

/// The start window, `frmSplash`, while it is on show: 2.5 seconds, or until a click anywhere.
class Splash {
public:
    /// `chiudi` as for the message.
    Splash(Timers& timers, std::function<void()> chiudi);

    [[nodiscard]] Controlli& controlli() { return controlli_; }
    void clic() { chiudi_(); }

private:
    Controlli controlli_;
    std::function<void()> chiudi_;
    std::unique_ptr<Timer> Timer_;
};

} // namespace lumigrafo
