#include "platform/linux/trasporti.h"

#include "platform/linux/connessione.h"
#include "platform/linux/senza_sigpipe.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <linux/sockios.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <termios.h>
#include <unistd.h>

namespace lumigrafo {

namespace {

/// Between two looks at what is still on its way.
constexpr int kPassoMs = 10;

bool daRiprovare() {
    return errno == EAGAIN || errno == EWOULDBLOCK;
}

class TrasportoFile final : public Trasporto {
public:
    /// `inViaggio`: the request that counts the bytes still on their way; 0 where the device keeps none.
    TrasportoFile(Descrittore f, bool risponde, unsigned long inViaggio)
        : f_(std::move(f)), risponde_(risponde), inViaggio_(inViaggio) {}

    std::size_t scrivi(std::string_view byte, Limite limite) override {
        const SenzaSigpipe silenzio;
        const Momento fine = fra(limite);
        std::size_t presi = 0;
        while (presi < byte.size()) {
            const auto n =
                riprovando([&] { return ::write(f_.fd(), byte.data() + presi, byte.size() - presi); });
            if (n > 0)
                presi += static_cast<std::size_t>(n);
            else if (n == 0 || !daRiprovare() || !pronto(f_.fd(), POLLOUT, fine))
                break;
        }
        return presi;
    }

    std::string leggi(std::size_t quanti, Limite limite) override {
        const Momento fine = fra(limite);
        std::string letti;
        while (risponde_ && letti.size() < quanti && pronto(f_.fd(), POLLIN, fine)) {
            std::array<char, 256> pezzo{};
            const auto spazio = std::min(pezzo.size(), quanti - letti.size());
            const auto n = riprovando([&] { return ::read(f_.fd(), pezzo.data(), spazio); });
            if (n > 0)
                letti.append(pezzo.data(), static_cast<std::size_t>(n));
            else if (n == 0 || !daRiprovare())
                break;
        }
        return letti;
    }

    [[nodiscard]] bool risponde() const override { return risponde_; }

    bool svuota(Limite limite) override {
        const Momento fine = fra(limite);
        int inCammino = 0;
        while (inViaggio_ != 0 && ::ioctl(f_.fd(), inViaggio_, &inCammino) == 0 && inCammino > 0) {
            const int resto = restano(fine);
            if (resto == 0 || caduto()) // what a broken connection hasn't sent stays on its way for ever
                return false;
            ::poll(nullptr, 0, std::min(kPassoMs, resto));
        }
        return !caduto();
    }

private:
    /// The other side broke the connection off; said once.
    [[nodiscard]] bool caduto() const {
        int errore = 0;
        socklen_t lunghezza = sizeof errore;
        return ::getsockopt(f_.fd(), SOL_SOCKET, SO_ERROR, &errore, &lunghezza) == 0 && errore != 0;
    }

    Descrittore f_;
    bool risponde_;
    unsigned long inViaggio_;
};

/// The terminal driver must neither echo the printer's answers back to it nor change a byte on the way.
void grezzo(int fd) {
    termios modi{};
    if (::tcgetattr(fd, &modi) != 0)
        return;
    ::cfmakeraw(&modi);
    static_cast<void>(::tcsetattr(fd, TCSANOW, &modi));
}

} // namespace

std::unique_ptr<Trasporto> TrasportiLinux::tcp(const std::string& host, std::uint16_t porta,
                                               Trasporto::Limite limite) {
    Descrittore f = connettiTcp(host, porta, fra(limite));
    const int acceso = 1; // a question of three bytes isn't held back for more
    static_cast<void>(::setsockopt(f.fd(), IPPROTO_TCP, TCP_NODELAY, &acceso, sizeof acceso));
    return f.aperto() ? std::make_unique<TrasportoFile>(std::move(f), true, SIOCOUTQ) : nullptr;
}

std::unique_ptr<Trasporto> TrasportiLinux::dispositivo(const std::string& file) {
    constexpr int kModi = O_NONBLOCK | O_NOCTTY;
    Descrittore f = apri(file, O_RDWR | kModi);
    const bool risponde = f.aperto();
    if (!risponde)
        f = apri(file, O_WRONLY | kModi);
    if (!f.aperto())
        return nullptr;
    const bool terminale = ::isatty(f.fd()) != 0;
    if (terminale)
        grezzo(f.fd());
    return std::make_unique<TrasportoFile>(std::move(f), risponde, terminale ? TIOCOUTQ : 0);
}

} // namespace lumigrafo
