#pragma once

#include <arpa/inet.h>
#include <array>
#include <cstdint>
#include <mutex>
#include <netinet/in.h>
#include <poll.h>
#include <stdexcept>
#include <string>
#include <string_view>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace lumigrafo::prova {

/// How a printer behaves.
enum class Umore {
    Buona,
    Lenta,         ///< answers each question after 300 ms
    SenzaCarta,    ///< out of paper from the start
    Aperta,        ///< its cover is open
    Muta,          ///< takes all and answers nothing
    Insensata,     ///< answers with letters
    ChiudeAMeta,   ///< breaks off in the middle of the receipt
    CartaAMeta,    ///< runs out of paper in the middle of the receipt
    CartaAllaFine, ///< prints on without paper and says so behind the receipt
    FineInsensata, ///< answers its state well and the end with rubbish
};

/// A printer of the network on a thread of its own, for one connection after the other.
class Stampante {
public:
    explicit Stampante(Umore umore) : umore_(umore) {
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
    ~Stampante() {
        ::close(fine_[1]);
        filo_.join();
        ::close(fine_[0]);
        ::close(ascolto_);
    }
    Stampante(const Stampante&) = delete;
    Stampante& operator=(const Stampante&) = delete;

    [[nodiscard]] std::uint16_t porta() const { return porta_; }
    /// All that came, from every connection.
    [[nodiscard]] std::string ricevuto() const {
        const std::lock_guard g(blocco_);
        return ricevuto_;
    }
    /// How many receipts came whole: their cuts.
    [[nodiscard]] int tagli() const {
        constexpr std::string_view kTaglio{"\x1DVB\x03", 4};
        const std::string tutto = ricevuto();
        int quanti = 0;
        for (std::size_t i = tutto.find(kTaglio); i != tutto.npos; i = tutto.find(kTaglio, i + 1))
            ++quanti;
        return quanti;
    }

private:
    /// Until something comes; false at the end of the printer.
    [[nodiscard]] bool attendi(int presa) const {
        std::array<pollfd, 2> attese{{{presa, POLLIN, 0}, {fine_[0], POLLIN, 0}}};
        ::poll(attese.data(), attese.size(), -1);
        return attese[1].revents == 0;
    }
    void servi() {
        while (attendi(ascolto_)) {
            const int presa = ::accept(ascolto_, nullptr, nullptr);
            cliente(presa);
            ::close(presa);
        }
    }
    void cliente(int presa) {
        std::string coda;
        do {
            std::array<char, 64> pezzo{};
            const auto n = attendi(presa) ? ::recv(presa, pezzo.data(), pezzo.size(), 0) : 0;
            if (n <= 0)
                return;
            coda.append(pezzo.data(), static_cast<std::size_t>(n));
            const std::lock_guard g(blocco_);
            ricevuto_.append(pezzo.data(), static_cast<std::size_t>(n));
        } while (rispondi(presa, coda));
    }
    /// The answers to what has come since the last call; false: break off.
    bool rispondi(int presa, std::string& coda) {
        constexpr char kBene = 0x12, kFuoriLinea = 0x1A, kCoperchio = 0x16, kFineCarta = 0x32,
                       kSensoreCarta = 0x72;
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

    const Umore umore_;
    const int ascolto_ = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    int fine_[2] = {-1, -1};
    std::uint16_t porta_ = 0;
    mutable std::mutex blocco_;
    std::string ricevuto_;
    std::thread filo_;
};

} // namespace lumigrafo::prova
