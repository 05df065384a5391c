#include "platform/linux/connessione.h"

#include "platform/linux/risolutore.h"

#include <cerrno>
#include <netinet/in.h>
#include <sys/socket.h>
#include <utility>

namespace lumigrafo {

namespace {

Descrittore connettiA(const IndirizzoRete& indirizzo, Momento fine) {
    Descrittore f(
        ::socket(indirizzo.dati.ss_family, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, IPPROTO_TCP));
    if (!f.aperto())
        return {};
    const auto* meta = reinterpret_cast<const sockaddr*>(&indirizzo.dati);
    if (::connect(f.fd(), meta, indirizzo.lunghezza) == 0)
        return f;
    if ((errno != EINPROGRESS && errno != EINTR) || !pronto(f.fd(), POLLOUT, fine))
        return {};
    int errore = 0;
    socklen_t lunghezza = sizeof errore;
    const bool riuscita = ::getsockopt(f.fd(), SOL_SOCKET, SO_ERROR, &errore, &lunghezza) == 0 && errore == 0;
    return riuscita ? std::move(f) : Descrittore();
}

} // namespace

Descrittore connettiTcp(const std::string& host, std::uint16_t porta, Momento fine) {
    Descrittore f;
    const auto indirizzi = risolvi(host, porta, fine);
    for (std::size_t i = 0; i < indirizzi.size() && !f.aperto(); ++i) {
        // One that doesn't answer leaves the others their share of the time.
        const auto ora = std::chrono::steady_clock::now();
        f = connettiA(indirizzi[i], ora + (fine - ora) / static_cast<int>(indirizzi.size() - i));
    }
    return f;
}

} // namespace lumigrafo
