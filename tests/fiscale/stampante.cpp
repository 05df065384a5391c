#include "tests/fiscale/stampante.h"

#include <arpa/inet.h>
#include <array>
#include <netinet/in.h>
#include <poll.h>
#include <stdexcept>
#include <string_view>
#include <sys/socket.h>
#include <unistd.h>

namespace lumigrafo::prova {

namespace {

constexpr char kBene = 0x12, kFuoriLinea = 0x1A, kCoperchio = 0x16, kFineCarta = 0x32, kSensoreCarta = 0x72;
constexpr std::string_view kTaglio{"\x1DVB\x03", 4};

} // namespace

Stampante::Stampante(Umore umore) : umore_(umore) {
    ascolto_ = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in qui{};
    qui.sin_family = AF_INET;
    qui.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t lunghezza = sizeof qui;
    auto* indirizzo = reinterpret_cast<sockaddr*>(&qui);
    if (::bind(ascolto_, indirizzo, sizeof qui) != 0 || ::listen(ascolto_, 5) != 0 ||
        ::getsockname(ascolto_, indirizzo, &lunghezza) != 0 || ::pipe(fine_) != 0)
        throw std::runtime_error("no printer");
    porta_ = ntohs(qui.sin_port);
    filo_ = std::thread([this] { servi(); });
}

Stampante::~Stampante() {
    ::close(fine_[1]);
    filo_.join();
    ::close(fine_[0]);
    ::close(ascolto_);
}

std::string Stampante::ricevuto() const {
    const std::lock_guard g(blocco_);
    return ricevuto_;
}

int Stampante::tagli() const {
    const std::string tutto = ricevuto();
    int quanti = 0;
    for (std::size_t i = tutto.find(kTaglio); i != tutto.npos; i = tutto.find(kTaglio, i + 1))
        ++quanti;
    return quanti;
}

void Stampante::servi() {
    for (;;) {
        std::array<pollfd, 2> attese{{{ascolto_, POLLIN, 0}, {fine_[0], POLLIN, 0}}};
        ::poll(attese.data(), attese.size(), -1);
        if (attese[1].revents != 0)
            return;
        const int presa = ::accept(ascolto_, nullptr, nullptr);
        cliente(presa);
        ::close(presa);
    }
}

void Stampante::cliente(int presa) {
    std::string coda;
    for (;;) {
        std::array<pollfd, 2> attese{{{presa, POLLIN, 0}, {fine_[0], POLLIN, 0}}};
        ::poll(attese.data(), attese.size(), -1);
        std::array<char, 64> pezzo{};
        const auto n = attese[1].revents != 0 ? 0 : ::recv(presa, pezzo.data(), pezzo.size(), 0);
        if (n <= 0)
            return;
        coda.append(pezzo.data(), static_cast<std::size_t>(n));
        {
            const std::lock_guard g(blocco_);
            ricevuto_.append(pezzo.data(), static_cast<std::size_t>(n));
        }
        if (!rispondi(presa, coda))
            return;
    }
}

bool Stampante::rispondi(int presa, std::string& coda) {
    const bool stampato = ricevuto().find("ORDINE") != std::string::npos;
    if (umore_ == Umore::ChiudeAMeta && stampato)
        return false;
    const bool senzaCarta = umore_ == Umore::SenzaCarta || (umore_ == Umore::CartaAMeta && stampato);
    const bool aperta = umore_ == Umore::Aperta;
    const std::pair<std::string_view, char> risposte[] = {
        {"\x10\x04\x01", senzaCarta || aperta ? kFuoriLinea : kBene},
        {"\x10\x04\x02", senzaCarta ? kFineCarta
                         : aperta   ? kCoperchio
                                    : kBene},
        {"\x10\x04\x04", senzaCarta ? kSensoreCarta : kBene},
        {"\x1Dr\x01", umore_ == Umore::FineInsensata   ? '\xFF'
                      : umore_ == Umore::CartaAllaFine ? '\x0F'
                                                       : '\0'}};
    for (const auto& [domanda, risposta] : risposte) {
        const auto dove = coda.find(domanda);
        if (dove == coda.npos)
            continue;
        coda.erase(0, dove + domanda.size());
        if (umore_ == Umore::Muta || (umore_ == Umore::CartaAMeta && stampato && domanda[0] == '\x1D'))
            return true;
        if (umore_ == Umore::Lenta)
            ::poll(nullptr, 0, 300);
        const char byte = umore_ == Umore::Insensata ? 'Q' : risposta;
        ::send(presa, &byte, 1, MSG_NOSIGNAL);
    }
    return true;
}

} // namespace lumigrafo::prova
