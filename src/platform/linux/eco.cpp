#include "platform/linux/eco.h"

#include "platform/linux/descrittore.h"

#include <arpa/inet.h>
#include <array>
#include <cerrno>
#include <cstring>
#include <netinet/ip_icmp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace lumigrafo {

namespace {

using Orologio = std::chrono::steady_clock;

/// The unprivileged kind of socket where the system grants it, else the raw one of a privileged process. The
/// raw one delivers the IP header too, and every other process's answers.
struct Presa {
    Descrittore f;
    bool grezza = false;
};

Presa apriPresa() {
    const auto crea = [](int tipo) {
        return Descrittore(::socket(AF_INET, tipo | SOCK_CLOEXEC | SOCK_NONBLOCK, IPPROTO_ICMP));
    };
    Presa presa{crea(SOCK_DGRAM), false};
    if (!presa.f.aperto())
        presa = {crea(SOCK_RAW), true};
    return presa;
}

std::uint16_t sommaDiControllo(const icmphdr& richiesta) {
    std::array<std::uint16_t, sizeof richiesta / 2> parole{};
    std::memcpy(parole.data(), &richiesta, sizeof richiesta);
    std::uint32_t somma = 0;
    for (const auto parola : parole)
        somma += parola;
    somma = (somma >> 16) + (somma & 0xFFFF);
    return static_cast<std::uint16_t>(~(somma + (somma >> 16)));
}

icmphdr richiesta() {
    icmphdr r{};
    r.type = ICMP_ECHO;
    r.un.echo.id = htons(static_cast<std::uint16_t>(::getpid()));
    r.un.echo.sequence = htons(1);
    r.checksum = sommaDiControllo(r);
    return r;
}

/// Whether what came is the answer to `r`. The kernel gives the unprivileged socket a number of its own, and
/// only the answers that bear it.
bool risposta(const Presa& presa, const char* dati, std::size_t quanti, const icmphdr& r) {
    const std::size_t intestazione = presa.grezza && quanti > 0 ? (dati[0] & 0x0F) * 4U : 0;
    icmphdr a{};
    if (quanti < intestazione + sizeof a)
        return false;
    std::memcpy(&a, dati + intestazione, sizeof a);
    return a.type == ICMP_ECHOREPLY && a.un.echo.sequence == r.un.echo.sequence &&
           (!presa.grezza || a.un.echo.id == r.un.echo.id);
}

bool attendiRisposta(const Presa& presa, const icmphdr& r, Orologio::time_point fine) {
    for (;;) {
        const auto resto = std::chrono::ceil<std::chrono::milliseconds>(fine - Orologio::now()).count();
        pollfd p{presa.f.fd(), POLLIN, 0};
        const int pronti = resto > 0 ? ::poll(&p, 1, static_cast<int>(resto)) : 0;
        if (pronti == 0 || (pronti < 0 && errno != EINTR))
            return false;
        if (pronti < 0)
            continue;
        std::array<char, 512> dati{};
        const auto n = ::recv(presa.f.fd(), dati.data(), dati.size(), 0);
        if (n < 0 && errno != EINTR && errno != EAGAIN)
            return false; // the system learnt that the address is farther than one hop, or nowhere
        if (n > 0 && risposta(presa, dati.data(), static_cast<std::size_t>(n), r))
            return true;
    }
}

} // namespace

bool ecoDiUnSalto(const std::string& indirizzo, std::chrono::milliseconds attesa) {
    sockaddr_in meta{};
    meta.sin_family = AF_INET;
    if (::inet_pton(AF_INET, indirizzo.c_str(), &meta.sin_addr) != 1 || meta.sin_addr.s_addr == INADDR_ANY)
        return false;
    const auto fine = Orologio::now() + attesa;
    const Presa presa = apriPresa();
    constexpr int kSalti = 1;
    if (!presa.f.aperto() || ::setsockopt(presa.f.fd(), IPPROTO_IP, IP_TTL, &kSalti, sizeof kSalti) != 0)
        return false;
    // Connected, so that only this address is heard and its failures reach us.
    if (::connect(presa.f.fd(), reinterpret_cast<const sockaddr*>(&meta), sizeof meta) != 0)
        return false;
    const icmphdr r = richiesta();
    return ::send(presa.f.fd(), &r, sizeof r, 0) == static_cast<ssize_t>(sizeof r) &&
           attendiRisposta(presa, r, fine);
}

} // namespace lumigrafo
