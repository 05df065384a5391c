#include "platform/linux/cliente_tcp.h"

#include "platform/linux/connessione.h"

#include <array>
#include <cerrno>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

namespace lumigrafo {

namespace {

void opzione(int fd, int livello, int nome, int valore) {
    // A system that lacks it goes on with its own default.
    static_cast<void>(::setsockopt(fd, livello, nome, &valore, sizeof valore));
}

class PresaLinux final : public PresaTcp {
public:
    bool connetti(const std::string& host, std::uint16_t porta, std::chrono::milliseconds limite) override {
        f_ = connettiTcp(host, porta, fra(limite));
        return f_.aperto();
    }

    void sonde(bool attive) override { opzione(f_.fd(), SOL_SOCKET, SO_KEEPALIVE, attive ? 1 : 0); }

    void limiteInattivita(std::chrono::milliseconds limite) override { inattivita_ = limite; }

    bool invia(std::string_view testo) override {
        while (!testo.empty()) {
            const ssize_t presi = riprovando(
                [&] { return ::send(f_.fd(), testo.data(), testo.size(), MSG_NOSIGNAL | MSG_DONTWAIT); });
            if (presi >= 0)
                testo.remove_prefix(static_cast<std::size_t>(presi));
            else if ((errno != EAGAIN && errno != EWOULDBLOCK) || !pronto(f_.fd(), POLLOUT, fra(inattivita_)))
                return false;
        }
        return true;
    }

    std::string ricevi() override {
        std::array<char, kMassimoRicevuto> pezzo;
        if (!pronto(f_.fd(), POLLIN, fra(inattivita_)))
            return {};
        const ssize_t venuti =
            riprovando([&] { return ::recv(f_.fd(), pezzo.data(), pezzo.size(), MSG_DONTWAIT); });
        return venuti > 0 ? std::string(pezzo.data(), static_cast<std::size_t>(venuti)) : std::string();
    }

    void chiudi(std::chrono::milliseconds limite) override {
        opzione(f_.fd(), IPPROTO_TCP, TCP_USER_TIMEOUT, static_cast<int>(limite.count()));
        ::shutdown(f_.fd(), SHUT_WR);
        // What has come and isn't wanted goes first: a close on top of it would be a break to the other side.
        std::array<char, kMassimoRicevuto> perso;
        for (int volte = 0; volte < kPezziPersi; ++volte)
            if (riprovando([&] { return ::recv(f_.fd(), perso.data(), perso.size(), MSG_DONTWAIT); }) <= 0)
                break;
        static_cast<void>(f_.chiudi());
    }

private:
    /// A board that never ends its answer is broken off.
    static constexpr int kPezziPersi = 64;

    Descrittore f_;
    std::chrono::milliseconds inattivita_{0};
};

} // namespace

std::unique_ptr<PresaTcp> ClienteTcpLinux::crea() {
    return std::make_unique<PresaLinux>();
}

} // namespace lumigrafo
