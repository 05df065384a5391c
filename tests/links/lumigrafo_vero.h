#pragma once

#include <atomic>
#include <functional>
#include <string>
#include <thread>
#include <vector>

namespace lumigrafo::prova {

/// A loopback address of its own, so that tests that run at one time don't meet.
[[nodiscard]] std::string indirizzoLocale();

/// A board on the network, at an address of this machine and the link's port.
class LumigrafoVero {
public:
    /// What it does with a connection; it is closed afterwards.
    using Condotta = std::function<void(LumigrafoVero&, int fd)>;

    /// Without a conduct it never accepts, and lets only so many connections wait that the next one hangs.
    LumigrafoVero(const std::string& ip, Condotta condotta);
    ~LumigrafoVero();

    /// Reads one whole document; answers.
    void leggiERispondi(int fd);
    /// Waits until the other side closes, reading nothing before.
    void aspetta(int fd) const;
    void scrivi(int fd, const std::string& testo);

    [[nodiscard]] std::string ricevuto() const; ///< the last document; call it once the link is done
    std::atomic<std::size_t> scritti{0};        ///< bytes that went out

private:
    void riempiCoda(const std::string& ip);

    int ascolto_;
    std::string ricevuto_;
    std::atomic<bool> pronto_{false};
    std::vector<int> inCoda_;
    std::thread filo_;
};

} // namespace lumigrafo::prova
