#pragma once

#include "platform/alimentazione.h"
#include "platform/processi.h"

namespace lumigrafo {

/// Switches the machine off through its own command: systemctl where systemd runs it, else shutdown. Throws
/// Guasto 53 where none of them can be started.
class AlimentazioneLinux : public Alimentazione {
public:
    explicit AlimentazioneLinux(Processi& processi);
    /// For a machine that is known to run, or not to run, under systemd.
    AlimentazioneLinux(Processi& processi, bool systemd) : processi_(processi), systemd_(systemd) {}
    void spegni() override;
    void riavvia() override;

private:
    void comanda(const char* azioneSystemd, const char* opzioneShutdown);

    Processi& processi_;
    bool systemd_;
};

} // namespace lumigrafo
