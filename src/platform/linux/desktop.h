#pragma once

#include "platform/desktop.h"
#include "platform/processi.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lumigrafo {

/// The desktop through xrandr and the settings program of whatever desktop environment is installed.
class DesktopLinux : public Desktop {
public:
    explicit DesktopLinux(Processi& processi) : processi_(processi) {}
    void estendi() override;
    void apriImpostazioni(const std::filesystem::path& comandi) override;
    void apriTastiera(const std::filesystem::path& programma) override;

private:
    /// The first program that is installed.
    void avviaUno(std::span<const std::vector<std::string>> comandi);

    Processi& processi_;
};

/// The arguments that make xrandr put each connected output in a row, from left to right, given what
/// `xrandr --query` prints. Empty where that is so already or fewer than two are connected.
[[nodiscard]] std::vector<std::string> argomentiEstensione(std::string_view elenco);

} // namespace lumigrafo
