#pragma once

#include "platform/messaggi.h"
#include "platform/timer.h"

namespace lumigrafo {

/// The message and the start window on the screen, in the middle of the operator's monitor, in proportion to
/// it. Each runs a loop of its own; one may open while another is up. Needs a QApplication and the resources.
class MessaggiQt final : public Messaggi {
public:
    /// `timers` must outlive it.
    explicit MessaggiQt(Timers& timers) : timers_(timers) {}
    void MostraMessaggio(const std::string& testo, std::int16_t secondi) override;
    void MostraSplash() override;

private:
    Timers& timers_;
};

} // namespace lumigrafo
