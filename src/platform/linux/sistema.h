#pragma once

#include "platform/linux/istanza.h"
#include "platform/sistema.h"

#include <filesystem>
#include <functional>

namespace lumigrafo {

/// BEL to the terminal that this process was started from; nothing where there is none.
void campanella();

class SistemaLinux : public Sistema {
public:
    /// `cartella`: the program folder. `bip`: what sounds the beep, such as the window system's own.
    explicit SistemaLinux(std::filesystem::path cartella, std::function<void()> bip = campanella)
        : istanza_(std::move(cartella)), bip_(std::move(bip)) {}

    bool istanzaPrecedente() override { return istanza_.precedente(); }
    bool eco(const std::string& indirizzo) override;
    std::string NomeUtente() override;
    void bip() override { bip_(); }

private:
    Istanza istanza_;
    std::function<void()> bip_;
};

} // namespace lumigrafo
