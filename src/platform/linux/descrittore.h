#pragma once

#include <cerrno>
#include <filesystem>
#include <sys/types.h>
#include <utility>

namespace lumigrafo {

/// An open file of the system, closed with the object.
class Descrittore {
public:
    Descrittore() = default;
    explicit Descrittore(int fd) : fd_(fd) {}
    Descrittore(Descrittore&& altro) noexcept : fd_(std::exchange(altro.fd_, -1)) {}
    Descrittore& operator=(Descrittore&& altro) noexcept {
        std::swap(fd_, altro.fd_);
        return *this;
    }
    ~Descrittore() { (void)chiudi(); }

    [[nodiscard]] bool aperto() const { return fd_ >= 0; }
    [[nodiscard]] int fd() const { return fd_; }
    [[nodiscard]] int cedi() { return std::exchange(fd_, -1); }
    /// False where the system reports at the closing that something written was lost.
    bool chiudi();

private:
    int fd_ = -1;
};

/// Opens a file, never left to a started program; errno tells why it isn't open.
[[nodiscard]] Descrittore apri(const std::filesystem::path& file, int modo, mode_t permessi = 0644);

/// Repeats a system call that a signal broke off.
template <typename Chiamata>
auto riprovando(Chiamata&& chiamata) {
    auto esito = chiamata();
    while (esito < 0 && errno == EINTR)
        esito = chiamata();
    return esito;
}

} // namespace lumigrafo
