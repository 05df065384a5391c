#pragma once

#include "tests/sostegno/cartella_temporanea.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <stdexcept>
#include <string>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace lumigrafo::prova {

/// A folder of the test's own, gone with it.
struct Cartella : CartellaTemporanea {
    [[nodiscard]] std::filesystem::path operator/(const char* nome) const { return percorso() / nome; }
    [[nodiscard]] long quantiFile() const {
        return std::distance(std::filesystem::directory_iterator(percorso()), {});
    }
};

inline void scrivi(const std::filesystem::path& file, const std::string& testo) {
    std::ofstream(file, std::ios::binary) << testo;
}

inline std::string leggi(const std::filesystem::path& file) {
    std::ifstream f(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), {}};
}

/// A second process, forked off the test. It ends with what `lavoro` returns; the test's end kills it.
class Figlio {
public:
    explicit Figlio(const std::function<int()>& lavoro) : pid_(::fork()) {
        if (pid_ == 0) {
            ::prctl(PR_SET_PDEATHSIG, SIGKILL); // a test that is broken off leaves nobody behind
            int codice = 99;
            try {
                codice = lavoro();
            } catch (...) { // an exception must not run on into the test program's copy
            }
            ::_exit(codice);
        }
    }
    ~Figlio() { uccidi(); }
    Figlio(const Figlio&) = delete;
    Figlio& operator=(const Figlio&) = delete;

    [[nodiscard]] pid_t pid() const { return pid_; }
    /// Exit code, or the signal that ended it, negative.
    int attendi() {
        int stato = 0;
        ::waitpid(pid_, &stato, 0);
        pid_ = -1;
        return WIFEXITED(stato) ? WEXITSTATUS(stato) : -WTERMSIG(stato);
    }
    void uccidi() {
        if (pid_ > 0) {
            ::kill(pid_, SIGKILL);
            attendi();
        }
    }

private:
    pid_t pid_;
};

/// One process tells another that it has come to a point. Made before the fork.
class Cenno {
public:
    Cenno() {
        if (::pipe2(tubo_, O_CLOEXEC) != 0)
            throw std::runtime_error("pipe");
    }
    ~Cenno() {
        ::close(tubo_[0]);
        ::close(tubo_[1]);
    }
    Cenno(const Cenno&) = delete;
    Cenno& operator=(const Cenno&) = delete;
    void da() const { (void)!::write(tubo_[1], "x", 1); }
    void aspetta() const {
        char c;
        (void)!::read(tubo_[0], &c, 1);
    }
    /// Waits until no other process can give the sign any more: each has ended or become another program.
    void aspettaFine() {
        ::close(std::exchange(tubo_[1], -1));
        aspetta();
    }

private:
    int tubo_[2]{};
};

/// Gives up an administrator's rights, to whom no permission applies. For forked processes only.
inline void senzaPrivilegi() {
    constexpr uid_t kNessuno = 65534;
    if (::geteuid() == 0 && (::setgid(kNessuno) != 0 || ::setuid(kNessuno) != 0))
        ::_exit(98);
}

} // namespace lumigrafo::prova
