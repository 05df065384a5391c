#include "tests/sostegno/processo.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace lumigrafo::prova {

using namespace std::chrono_literals;
using Momento = std::chrono::steady_clock;

bool attendiChe(std::chrono::milliseconds limite, const std::function<bool()>& vero) {
    const auto fine = Momento::now() + limite;
    while (!vero()) {
        if (Momento::now() >= fine)
            return vero();
        std::this_thread::sleep_for(5ms);
    }
    return true;
}

Processo::Processo(const std::vector<std::string>& comando, const Ambiente& variabili) {
    int tubo[2], ingresso[2];
    // Closed on exec: a second program must not hold the pipes of the first.
    if (::pipe2(tubo, O_CLOEXEC) != 0 || ::pipe2(ingresso, O_CLOEXEC) != 0)
        throw std::runtime_error("pipe");
    pid_ = ::fork();
    if (pid_ == 0) {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL); // a test that is broken off leaves nobody behind
        ::dup2(ingresso[0], STDIN_FILENO);
        ::dup2(tubo[1], STDOUT_FILENO);
        for (const auto& [nome, valore] : variabili)
            ::setenv(nome.c_str(), valore.c_str(), 1);
        std::vector<char*> argomenti;
        for (const std::string& parola : comando)
            argomenti.push_back(const_cast<char*>(parola.c_str()));
        argomenti.push_back(nullptr);
        ::execvp(argomenti[0], argomenti.data());
        ::_exit(127);
    }
    ::close(ingresso[0]);
    ::close(tubo[1]);
    ingresso_ = ingresso[1];
    uscita_ = tubo[0];
    if (pid_ < 0)
        throw std::runtime_error("fork");
}

Processo::~Processo() {
    uccidi();
    ::close(ingresso_);
    ::close(uscita_);
}

bool Processo::vivo() {
    return !fine(0ms);
}

void Processo::segnala(int segnale) const {
    if (!esito_)
        ::kill(pid_, segnale);
}

std::optional<int> Processo::fine(std::chrono::milliseconds limite) {
    (void)attendiChe(limite, [this] {
        int stato = 0;
        if (!esito_ && ::waitpid(pid_, &stato, WNOHANG) == pid_)
            esito_ = WIFEXITED(stato) ? WEXITSTATUS(stato) : -WTERMSIG(stato);
        return esito_.has_value();
    });
    return esito_;
}

void Processo::uccidi() {
    segnala(SIGKILL);
    (void)fine(10s);
}

void Processo::manda(const std::string& riga) const {
    const std::string testo = riga + "\n";
    if (::write(ingresso_, testo.data(), testo.size()) != static_cast<ssize_t>(testo.size()))
        throw std::runtime_error("it reads no more");
}

bool Processo::leggi(std::chrono::milliseconds limite) {
    pollfd attesa{uscita_, POLLIN, 0};
    if (::poll(&attesa, 1, static_cast<int>(limite.count())) <= 0)
        return false;
    char pezzo[4096];
    const auto n = ::read(uscita_, pezzo, sizeof pezzo);
    letto_.append(pezzo, static_cast<std::size_t>(std::max<ssize_t>(n, 0)));
    return n > 0;
}

std::optional<std::string> Processo::riga(std::chrono::milliseconds limite) {
    const auto fine = Momento::now() + limite;
    while (letto_.find('\n') == std::string::npos) {
        const auto resta = std::chrono::duration_cast<std::chrono::milliseconds>(fine - Momento::now());
        if (!leggi(std::max(resta, 0ms)))
            return std::nullopt;
    }
    std::string prima = letto_.substr(0, letto_.find('\n'));
    letto_.erase(0, prima.size() + 1);
    return prima;
}

std::string Processo::resto() {
    while (leggi(60s)) {
    }
    return std::exchange(letto_, {});
}

std::pair<int, std::string> esegui(const std::vector<std::string>& comando,
                                   const Processo::Ambiente& variabili) {
    Processo processo(comando, variabili);
    std::string uscita = processo.resto();
    return {processo.fine(10s).value_or(-1), std::move(uscita)};
}

} // namespace lumigrafo::prova
