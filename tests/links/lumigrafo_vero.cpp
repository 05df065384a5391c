#include "tests/links/lumigrafo_vero.h"

#include "links/collegamento_android.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <poll.h>
#include <random>
#include <stdexcept>
#include <sys/socket.h>
#include <unistd.h>

namespace lumigrafo::prova {

namespace {

sockaddr_in posto(const std::string& ip) {
    sockaddr_in a{};
    a.sin_family = AF_INET;
    a.sin_port = htons(CollegamentoAndroid::kPorta);
    ::inet_pton(AF_INET, ip.c_str(), &a.sin_addr);
    return a;
}

} // namespace

std::string indirizzoLocale() {
    static std::random_device caso;
    return "127." + std::to_string(caso() % 254 + 1) + "." + std::to_string(caso() % 256) + "." +
           std::to_string(caso() % 254 + 1);
}

LumigrafoVero::LumigrafoVero(const std::string& ip, Condotta condotta)
    : ascolto_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    const sockaddr_in qui = posto(ip);
    if (::bind(ascolto_, reinterpret_cast<const sockaddr*>(&qui), sizeof qui) != 0 ||
        ::listen(ascolto_, condotta ? 4 : 0) != 0)
        throw std::runtime_error("no listening at " + ip);
    if (!condotta) {
        riempiCoda(ip);
        return;
    }
    filo_ = std::thread([this, condotta] {
        const int fd = ::accept(ascolto_, nullptr, nullptr);
        if (fd < 0)
            return;
        condotta(*this, fd);
        ::close(fd);
        pronto_ = true;
    });
}

LumigrafoVero::~LumigrafoVero() {
    ::shutdown(ascolto_, SHUT_RDWR);
    if (filo_.joinable())
        filo_.join();
    ::close(ascolto_);
    for (const int fd : inCoda_)
        ::close(fd);
}

void LumigrafoVero::riempiCoda(const std::string& ip) {
    const sockaddr_in qui = posto(ip);
    for (int i = 0; i < 4; ++i) {
        inCoda_.push_back(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
        static_cast<void>(::connect(inCoda_.back(), reinterpret_cast<const sockaddr*>(&qui), sizeof qui));
    }
}

void LumigrafoVero::leggiERispondi(int fd) {
    char pezzo[4096];
    while (!ricevuto_.ends_with("}}")) {
        const auto n = ::recv(fd, pezzo, sizeof pezzo, 0);
        if (n <= 0)
            return;
        ricevuto_.append(pezzo, static_cast<std::size_t>(n));
    }
    scrivi(fd, "OK");
}

void LumigrafoVero::aspetta(int fd) const {
    pollfd chiusa{fd, POLLRDHUP, 0};
    ::poll(&chiusa, 1, 5000);
}

void LumigrafoVero::scrivi(int fd, const std::string& testo) {
    const auto n = ::send(fd, testo.data(), testo.size(), MSG_NOSIGNAL);
    scritti += static_cast<std::size_t>(n > 0 ? n : 0);
}

std::string LumigrafoVero::ricevuto() const {
    while (!pronto_)
        std::this_thread::yield();
    return ricevuto_;
}

} // namespace lumigrafo::prova
