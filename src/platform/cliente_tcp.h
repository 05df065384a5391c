#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace lumigrafo {

/// One connection that this program opens. Each call blocks its caller, for its limit at the most, and lets
/// no event through. Nothing throws: what fails says so, and the calls behind it fail too.
class PresaTcp {
public:
    /// Closes what is still open.
    virtual ~PresaTcp() = default;
    /// `host`: an address or a name; one that can't be either fails at once. The limit covers the look-up of
    /// the name too.
    [[nodiscard]] virtual bool connetti(const std::string& host, std::uint16_t porta,
                                        std::chrono::milliseconds limite) = 0;
    /// Probes of an idle connection, off or on.
    virtual void sonde(bool attive) = 0;
    /// How long a reading or a sending may stand still.
    virtual void limiteInattivita(std::chrono::milliseconds limite) = 0;
    /// Hands all bytes to the network. False where the other side is gone or takes no more.
    virtual bool invia(std::string_view testo) = 0;
    /// What comes first, as it came, kMassimoRicevuto bytes at the most; empty where nothing came in time or
    /// the other side closed.
    [[nodiscard]] virtual std::string ricevi() = 0;
    /// Ends the connection without waiting: what was sent goes on its way alone, and is given up after
    /// `limite`.
    virtual void chiudi(std::chrono::milliseconds limite) = 0;

    static constexpr std::size_t kMassimoRicevuto = 4096;
};

/// Makes connections.
class ClienteTcp {
public:
    virtual ~ClienteTcp() = default;
    [[nodiscard]] virtual std::unique_ptr<PresaTcp> crea() = 0;
};

} // namespace lumigrafo
