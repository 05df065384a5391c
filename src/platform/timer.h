#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace lumigrafo {

/// A periodic timer of the event loop.
class Timer {
public:
    virtual ~Timer() = default;
    /// Switches it on or off. Switching on a running timer doesn't restart its period.
    virtual void abilita(bool acceso) = 0;
    [[nodiscard]] virtual bool abilitato() const = 0;
    /// The period; a change on a running timer restarts it. 0 stops the ticks.
    virtual void intervallo(std::chrono::milliseconds periodo) = 0;

    /// Off and on again: the period begins anew.
    void riavvia() {
        abilita(false);
        abilita(true);
    }
};

/// Makes timers. They are off at first.
class Timers {
public:
    virtual ~Timers() = default;
    [[nodiscard]] virtual std::unique_ptr<Timer> crea(std::chrono::milliseconds periodo,
                                                      std::function<void()> scatto) = 0;
};

} // namespace lumigrafo
