#pragma once

#include <cstdint>
#include <mutex>
#include <string>
#include <thread>

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
    explicit Stampante(Umore umore);
    ~Stampante();
    Stampante(const Stampante&) = delete;
    Stampante& operator=(const Stampante&) = delete;

    [[nodiscard]] std::uint16_t porta() const { return porta_; }
    /// All that came, from every connection.
    [[nodiscard]] std::string ricevuto() const;
    /// How many receipts came whole: their cuts.
    [[nodiscard]] int tagli() const;

private:
    void servi();
    void cliente(int presa);
    /// The answers to what has come since the last call; false: break off.
    bool rispondi(int presa, std::string& coda);

    Umore umore_;
    int ascolto_ = -1;
    int fine_[2] = {-1, -1};
    std::uint16_t porta_ = 0;
    mutable std::mutex blocco_;
    std::string ricevuto_;
    std::thread filo_;
};

} // namespace lumigrafo::prova
