#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace lumigrafo {

/// Bytes to a device and back. Each call blocks its caller, for its limit at the most, and lets no event
/// through. Nothing throws: what fails says so.
class Trasporto {
public:
    using Limite = std::chrono::milliseconds;
    /// Closes it.
    virtual ~Trasporto() = default;
    /// Hands bytes over; returns how many were taken. Fewer than given: the time was over, or the other side
    /// is gone.
    [[nodiscard]] virtual std::size_t scrivi(std::string_view byte, Limite limite) = 0;
    /// The bytes that came, `quanti` at the most; fewer where the time was over or the other side closed. A
    /// limit of 0 takes what is there already.
    [[nodiscard]] virtual std::string leggi(std::size_t quanti, Limite limite) = 0;
    /// False for a device that answers nothing.
    [[nodiscard]] virtual bool risponde() const = 0;
    /// Waits until every byte has left this machine: taken by the other side's system, or by the device.
    [[nodiscard]] virtual bool svuota(Limite limite) = 0;
};

/// Opens transports; null where it can't be done.
class Trasporti {
public:
    virtual ~Trasporti() = default;
    /// `host`: an address or a name; the limit covers the look-up of the name too.
    [[nodiscard]] virtual std::unique_ptr<Trasporto> tcp(const std::string& host, std::uint16_t porta,
                                                         Trasporto::Limite limite) = 0;
    /// A device file that exists; UTF-8.
    [[nodiscard]] virtual std::unique_ptr<Trasporto> dispositivo(const std::string& file) = 0;
};

} // namespace lumigrafo
