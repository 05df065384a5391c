#pragma once

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>
#include <sys/socket.h>
#include <sys/types.h>
#include <unistd.h>

namespace lumigrafo::prova {

/// A loopback address of its own, so that tests that run at one time don't meet.
inline std::string indirizzoLocale() {
    static std::random_device caso;
    return "127." + std::to_string(caso() % 254 + 1) + "." + std::to_string(caso() % 256) + "." +
           std::to_string(caso() % 254 + 1);
}

/// The bare other side of a TCP connection on this machine. It waits for nothing, unless asked to.
class ClienteNudo {
public:
    explicit ClienteNudo(int porta, bool attende = false)
        : presa_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | (attende ? 0 : SOCK_NONBLOCK), 0)) {
        sockaddr_in dove{};
        dove.sin_family = AF_INET;
        dove.sin_port = htons(static_cast<std::uint16_t>(porta));
        dove.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        if (::connect(presa_, reinterpret_cast<const sockaddr*>(&dove), sizeof dove) != 0 && attende) {
            ::close(presa_);
            throw std::runtime_error("nobody listens");
        }
    }
    ~ClienteNudo() { ::close(presa_); }
    ClienteNudo(const ClienteNudo&) = delete;
    ClienteNudo& operator=(const ClienteNudo&) = delete;

    /// How many bytes the system took.
    std::size_t manda(std::string_view dati) const {
        const ssize_t n = ::send(presa_, dati.data(), dati.size(), MSG_NOSIGNAL);
        return n < 0 ? 0 : static_cast<std::size_t>(n);
    }
    /// What has come; where it waits, what comes first. Empty at the end.
    [[nodiscard]] std::string ricevi() const {
        char pezzo[65536];
        const ssize_t n = ::recv(presa_, pezzo, sizeof pezzo, 0);
        return {pezzo, n < 0 ? 0 : static_cast<std::size_t>(n)};
    }
    void finitoDiMandare() const { ::shutdown(presa_, SHUT_WR); }
    /// Resets the connection, as one does that lost its memory of it.
    void tronca() {
        const linger subito{1, 0};
        ::setsockopt(presa_, SOL_SOCKET, SO_LINGER, &subito, sizeof subito);
        ::close(presa_);
        presa_ = -1;
    }

private:
    int presa_;
};

} // namespace lumigrafo::prova
