#pragma once

#include "platform/processi.h"

namespace lumigrafo {

/// Processes through /proc and signals.
class ProcessiLinux : public Processi {
public:
    /// Compares with the name of the process, of its executable and of its first argument. A process is asked
    /// by SIGTERM; one that belongs to somebody else is counted all the same.
    int termina(const std::string& nome) override;
    /// A name without a folder is looked for on the search path; with a folder, the program runs in it. The
    /// program outlives this process and is nobody's zombie. The window's style is left to the window
    /// manager.
    void avvia(const std::filesystem::path& programma, const std::vector<std::string>& argomenti,
               StileFinestra stile) override;
};

} // namespace lumigrafo
