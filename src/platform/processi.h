#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace lumigrafo {

/// How the window of a started program comes up.
enum class StileFinestra { Normale, Ridotta };

/// Other processes of this machine.
class Processi {
public:
    virtual ~Processi() = default;
    /// Asks every other process of exactly this name (with or without ".exe") to end. Returns how many were
    /// found.
    virtual int termina(const std::string& nome) = 0;
    /// Starts a program and doesn't wait for it. Throws Guasto 53 where it can't be started.
    virtual void avvia(const std::filesystem::path& programma, const std::vector<std::string>& argomenti,
                       StileFinestra stile) = 0;
};

} // namespace lumigrafo
