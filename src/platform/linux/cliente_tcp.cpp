#include "platform/linux/cliente_tcp.h"

#include "platform/linux/descrittore.h"
#include "platform/linux/risolutore.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <utility>

namespace lumigrafo {

namespace {

using Momento = std::chrono::steady_clock;

int millisecondi(Momento::time_point fine) {
    return static_cast<int>(std::max<std::int64_t>(
        0, std::chrono::ceil<std::chrono::milliseconds>(fine - Momento::now()).count()));
}

/// Waits until the connection can be read or written, or has failed. False where the time is over.
bool pronta(int fd, short eventi, Momento::time_point fine) {
    pollfd attesa{fd, eventi, 0};
    int esito = ::poll(&attesa, 1, millisecondi(fine));
    while (esito < 0 && errno == EINTR)
        esito = ::poll(&attesa, 1, millisecondi(fine));
    return esito > 0;
}

void opzione(int fd, int livello, int nome, int valore) {
    // A system that lacks it goes on with its own default.
    static_cast<void>(::setsockopt(fd, livello, nome, &valore, sizeof valore));
}

Descrittore connettiA(const IndirizzoRete& indirizzo, Momento::time_point fine) {
    Descrittore f(
        ::socket(indirizzo.dati.ss_family, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, IPPROTO_TCP));
    if (!f.aperto())
        return {};
    const auto* meta = reinterpret_cast<const sockaddr*>(&indirizzo.dati);
    if (::connect(f.fd(), meta, indirizzo.lunghezza) == 0)
        return f;
    if ((errno != EINPROGRESS && errno != EINTR) || !pronta(f.fd(), POLLOUT, fine))
        return {};
    int errore = 0;
    socklen_t lunghezza = sizeof errore;
    const bool riuscita = ::getsockopt(f.fd(), SOL_SOCKET, SO_ERROR, &errore, &lunghezza) == 0 && errore == 0;
    return riuscita ? std::move(f) : Descrittore();
}

class PresaLinux final : public PresaTcp {
public:
    bool connetti(const std::string& host, std::uint16_t porta, std::chrono::milliseconds limite) override {
        const auto fine = Momento::now() + limite;
        const auto indirizzi = risolvi(host, porta, fine);
        for (std::size_t i = 0; i < indirizzi.size() && !f_.aperto(); ++i) {
            // One that doesn't answer leaves the others their share of the time.
            const auto ora = Momento::now();
            const auto parte = (fine - ora) / static_cast<int>(indirizzi.size() - i);
            f_ = connettiA(indirizzi[i], ora + parte);
        }
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
            else if ((errno != EAGAIN && errno != EWOULDBLOCK) ||
                     !pronta(f_.fd(), POLLOUT, Momento::now() + inattivita_))
                return false;
        }
        return true;
    }

    std::string ricevi() override {
        std::array<char, kMassimoRicevuto> pezzo;
        if (!pronta(f_.fd(), POLLIN, Momento::now() + inattivita_))
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
