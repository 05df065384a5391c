#include "platform/linux/alimentazione.h"

#include "platform/guasto.h"

namespace lumigrafo {

AlimentazioneLinux::AlimentazioneLinux(Processi& processi)
    // The test that systemd itself documents for "was this machine started by it".
    : AlimentazioneLinux(processi, std::filesystem::is_directory("/run/systemd/system")) {}

void AlimentazioneLinux::spegni() {
    comanda("poweroff", "-h");
}

void AlimentazioneLinux::riavvia() {
    comanda("reboot", "-r");
}

void AlimentazioneLinux::comanda(const char* azioneSystemd, const char* opzioneShutdown) {
    const auto avvia = [this](const char* programma, const std::vector<std::string>& argomenti) {
        return ignorandoGuasti([&] { processi_.avvia(programma, argomenti, StileFinestra::Ridotta); });
    };
    if (systemd_ && avvia("systemctl", {azioneSystemd}))
        return;
    // An operator's search path often lacks the administrator's folders.
    for (const char* shutdown : {"shutdown", "/usr/sbin/shutdown", "/sbin/shutdown"})
        if (avvia(shutdown, {opzioneShutdown, "now"}))
            return;
    throw Guasto(guasti::kFileNonTrovato);
}

} // namespace lumigrafo
