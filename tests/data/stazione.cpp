#include "tests/data/stazione.h"

#include <csignal>
#include <fcntl.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace lumigrafo::prova {

Stazione::Stazione() {
    int verso[2], da[2];
    // Closed on exec: a second station must not hold the pipes of the first.
    if (::pipe2(verso, O_CLOEXEC) != 0 || ::pipe2(da, O_CLOEXEC) != 0)
        throw std::runtime_error("pipe");
    pid_ = ::fork();
    if (pid_ == 0) {
        ::dup2(verso[0], STDIN_FILENO);
        ::dup2(da[1], STDOUT_FILENO);
        ::execl(AIUTANTE, AIUTANTE, static_cast<char*>(nullptr));
        ::_exit(127);
    }
    ::close(verso[0]);
    ::close(da[1]);
    scrivi_ = verso[1];
    leggi_ = da[0];
}

Stazione::~Stazione() {
    ::close(scrivi_);
    uccidi();
    ::close(leggi_);
}

void Stazione::manda(const std::string& riga) {
    const std::string testo = riga + "\n";
    if (::write(scrivi_, testo.data(), testo.size()) != static_cast<ssize_t>(testo.size()))
        throw std::runtime_error("the other station is gone");
}

std::string Stazione::risposta() {
    std::string testo;
    for (char c = 0; ::read(leggi_, &c, 1) == 1 && c != '\n';)
        testo += c;
    return testo;
}

std::string Stazione::operator()(const std::string& riga) {
    manda(riga);
    return risposta();
}

void Stazione::uccidi() {
    if (pid_ <= 0)
        return;
    ::kill(pid_, SIGKILL);
    ::waitpid(pid_, nullptr, 0);
    pid_ = -1;
}

} // namespace lumigrafo::prova
