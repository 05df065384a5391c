#include "platform/linux/cliente_tcp.h"
#include "tests/links/finti_android.h"
#include "tests/sostegno/cartella_temporanea.h"
#include "tests/sostegno/cliente_nudo.h"

#include <arpa/inet.h>
#include <atomic>
#include <chrono>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <poll.h>
#include <stdexcept>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace lumigrafo::prova {
namespace {

using namespace std::chrono_literals;

/// A board on the network, at an address of this machine and the link's port.
class LumigrafoVero {
public:
    /// What it does with a connection; it is closed afterwards.
    using Condotta = std::function<void(LumigrafoVero&, int fd)>;

    /// Without a conduct it never accepts, and lets only so many connections wait that the next one hangs.
    LumigrafoVero(const std::string& ip, Condotta condotta) {
        sockaddr_in qui{};
        qui.sin_family = AF_INET;
        qui.sin_port = htons(CollegamentoAndroid::kPorta);
        ::inet_pton(AF_INET, ip.c_str(), &qui.sin_addr);
        const auto* indirizzo = reinterpret_cast<const sockaddr*>(&qui);
        if (::bind(ascolto_, indirizzo, sizeof qui) != 0 || ::listen(ascolto_, condotta ? 4 : 0) != 0)
            throw std::runtime_error("no listening at " + ip);
        for (int i = 0; !condotta && i < 4; ++i) {
            inCoda_.push_back(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
            static_cast<void>(::connect(inCoda_.back(), indirizzo, sizeof qui));
        }
        if (condotta)
            filo_ = std::thread([this, condotta = std::move(condotta)] {
                if (const int fd = ::accept(ascolto_, nullptr, nullptr); fd >= 0) {
                    condotta(*this, fd);
                    ::close(fd);
                    pronto_ = true;
                }
            });
    }
    ~LumigrafoVero() {
        ::shutdown(ascolto_, SHUT_RDWR);
        if (filo_.joinable())
            filo_.join();
        ::close(ascolto_);
        for (const int fd : inCoda_)
            ::close(fd);
    }

    /// Reads one whole document; answers.
    void leggiERispondi(int fd) {
        char pezzo[4096];
        while (!ricevuto_.ends_with("}}")) {
            const auto n = ::recv(fd, pezzo, sizeof pezzo, 0);
            if (n <= 0)
                return;
            ricevuto_.append(pezzo, static_cast<std::size_t>(n));
        }
        scrivi(fd, "OK");
    }
    /// Waits until the other side closes, reading nothing before.
    static void aspetta(int fd) {
        pollfd chiusa{fd, POLLRDHUP, 0};
        ::poll(&chiusa, 1, 5000);
    }
    void scrivi(int fd, const std::string& testo) {
        const auto n = ::send(fd, testo.data(), testo.size(), MSG_NOSIGNAL);
        scritti += static_cast<std::size_t>(n > 0 ? n : 0);
    }
    /// The last document; call it once the link is done.
    [[nodiscard]] std::string ricevuto() const {
        while (!pronto_)
            std::this_thread::yield();
        return ricevuto_;
    }
    std::atomic<std::size_t> scritti{0}; ///< bytes that went out

private:
    int ascolto_ = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    std::string ricevuto_;
    std::atomic<bool> pronto_{false};
    std::vector<int> inCoda_;
    std::thread filo_;
};

struct Caso {
    const char* nome;
    const char* notifica; ///< how the notice begins; null: none
    bool ascolta;
    LumigrafoVero::Condotta condotta{};
    const char* ip = nullptr; ///< null: an address of this machine
};

constexpr const char* kConnessione = "Errore connessione a lumigrafo con IP = ";
constexpr const char* kEsito = "Non ricevuto esito positivo da lumigrafo con IP = ";

const Caso kCasi[] = {
    {"refuses", kConnessione, false},
    {"hangsAtConnect", kConnessione, true},
    {"neverAnswers", kEsito, true, [](LumigrafoVero&, int fd) { LumigrafoVero::aspetta(fd); }},
    {"closesAtOnce", kEsito, true, [](LumigrafoVero&, int) {}},
    {"answersByteByByte", nullptr, true,
     [](LumigrafoVero& l, int fd) {
         l.scrivi(fd, "O");
         LumigrafoVero::aspetta(fd);
         l.scrivi(fd, "K");
     }},
    {"answersAGigabyte", nullptr, true,
     [](LumigrafoVero& l, int fd) {
         const std::string pezzo(1 << 16, 'x');
         for (std::size_t prima = 1; prima != l.scritti && l.scritti < 1'000'000'000;) {
             prima = l.scritti;
             l.scrivi(fd, pezzo);
         }
     }},
    {"hasNoName", kConnessione, false, {}, "lumigrafo-che-non-esiste.invalid"},
    {"isGarbage", kConnessione, false, {}, "192.168.1.5:8989 {\"è\"}"},
    {"isNotWhollyANumber", kConnessione, false, {}, "256.1.1.1"},
};

class LumigrafiVeri : public testing::TestWithParam<Caso> {};

TEST_P(LumigrafiVeri, isLeftInTimeAndTheNextOneIsServed) {
    const Caso& caso = GetParam();
    CartellaTemporanea cartella;
    const FileIni ini(cartella.percorso() / kFileImpostazioni);
    DatiFinti dati;
    OrologioFinto orologio;
    ClienteTcpLinux rete;
    NotificheFinte notifiche;
    const std::string ip = caso.ip ? caso.ip : indirizzoLocale(), buono = indirizzoLocale();
    ini.ScriviIni(kSezioneAndroid, "IpLumDroid0", ip);
    ini.ScriviIni(kSezioneAndroid, "IpLumDroid1", buono);
    dati.ip[0].Ip = ip;
    std::unique_ptr<LumigrafoVero> cattivo;
    if (caso.ascolta)
        cattivo = std::make_unique<LumigrafoVero>(ip, caso.condotta);
    const LumigrafoVero prossimo(buono, [](LumigrafoVero& l, int fd) { l.leggiERispondi(fd); });
    CollegamentoAndroid android(ini, dati, orologio, rete, notifiche);

    const auto inizio = std::chrono::steady_clock::now();
    android.SincronizzaLumAndroid(0);
    EXPECT_LT(std::chrono::steady_clock::now() - inizio, 1000ms + 500ms); // the limit, and a busy machine
    const std::vector<std::string> nessuna, una{kTestaNotifica + (caso.notifica ? caso.notifica : "") + ip};
    EXPECT_EQ(notifiche.mostrate, caso.notifica ? una : nessuna);
    EXPECT_TRUE(prossimo.ricevuto().ends_with(R"("ForeColorCategoria3":"16777215"}})"));
    EXPECT_LT(cattivo ? cattivo->scritti.load() : 0, 64'000'000u);
}

INSTANTIATE_TEST_SUITE_P(Casi, LumigrafiVeri, testing::ValuesIn(kCasi),
                         [](const auto& caso) { return std::string(caso.param.nome); });

} // namespace
} // namespace lumigrafo::prova
