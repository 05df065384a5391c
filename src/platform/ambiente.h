#pragma once

#include <filesystem>
#include <string>

namespace lumigrafo {

/// Where the process runs and how it was started.
struct Ambiente {
    /// The program folder: settings, state files and logs lie here. Without a separator at its end.
    std::filesystem::path cartella;
    /// The executable itself, started anew by a restart.
    std::filesystem::path eseguibile;
    /// The whole argument string. It is compared, never parsed.
    std::string argomenti;

    [[nodiscard]] bool riavvio() const { return argomenti == "RIAVVIO"; }
    [[nodiscard]] bool ridotta() const { return argomenti == "RIDOTTA"; }
    [[nodiscard]] std::filesystem::path file(const char* nome) const { return cartella / nome; }
};

} // namespace lumigrafo
