#pragma once

#include "platform/timer.h"

namespace lumigrafo {

/// Timers of Qt's loop, to the millisecond. A tick may come in the middle of an earlier tick's own routine,
/// when that lets events through; and a routine may destroy its timer.
class TimersQt final : public Timers {
public:
    [[nodiscard]] std::unique_ptr<Timer> crea(std::chrono::milliseconds periodo,
                                              std::function<void()> scatto) override;
};

} // namespace lumigrafo
