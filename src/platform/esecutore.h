#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lumigrafo {

/// How a program that was waited for ended.
struct FineProgramma {
    std::optional<int> codice; ///< exit code; none where it was killed, by us or by somebody else
    bool scaduto = false;      ///< still running at the limit: killed, with all that it started
    std::string uscita;        ///< what it wrote to its standard output, kMassimoUscita bytes at the most
};

/// Runs a program to its end.
class Esecutore {
public:
    static constexpr std::size_t kMassimoUscita = 64 * 1024;

    virtual ~Esecutore() = default;
    /// `parole`: the program, looked for on the search path where it has no folder, and its arguments.
    /// `ingresso` comes to it as standard input, which then ends. Blocks for `limite` at the most. None where
    /// it can't be started. What it writes beyond the greatest length is thrown away.
    [[nodiscard]] virtual std::optional<FineProgramma> esegui(const std::vector<std::string>& parole,
                                                              std::string_view ingresso,
                                                              std::chrono::milliseconds limite) = 0;
};

} // namespace lumigrafo
