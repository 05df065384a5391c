#pragma once

#include <chrono>
#include <string>

namespace lumigrafo::cassa {

/// The desk's side of a connection with a station. It blocks, for a limited time.
class Collegamento {
public:
    virtual ~Collegamento() = default;
    /// Connects anew. Throws Guasto where nobody answers there within the time.
    virtual void apri(const std::string& server, std::chrono::milliseconds limite) = 0;
    /// Throws Guasto where the connection is gone.
    virtual void manda(const std::string& testo) = 0;
    /// What comes next; empty where nothing has come within the time. Throws Guasto where the connection is
    /// gone.
    [[nodiscard]] virtual std::string ricevi(std::chrono::milliseconds limite) = 0;
};

} // namespace lumigrafo::cassa
