#include "platform/linux/esecutore.h"

#include "platform/linux/attesa.h"
#include "platform/linux/senza_sigpipe.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lumigrafo {

namespace {

struct Tubo {
    Descrittore lettura, scrittura;
};

std::optional<Tubo> nuovoTubo() {
    std::array<int, 2> capi{};
    if (::pipe2(capi.data(), O_CLOEXEC) != 0)
        return std::nullopt;
    return Tubo{Descrittore(capi[0]), Descrittore(capi[1])};
}

void senzaAttese(const Descrittore& f) {
    static_cast<void>(::fcntl(f.fd(), F_SETFL, ::fcntl(f.fd(), F_GETFL) | O_NONBLOCK));
}

/// A running program with our ends of its pipes.
class Figlio {
public:
    /// 0 where it couldn't be started.
    pid_t pid = 0;
    Descrittore versoDiLui, daLui, fine;

    explicit Figlio(const std::vector<std::string>& parole) {
        auto ingresso = nuovoTubo(), uscita = nuovoTubo();
        if (!ingresso || !uscita || parole.empty() || !avvia(parole, *ingresso, *uscita))
            return;
        versoDiLui = std::move(ingresso->scrittura);
        daLui = std::move(uscita->lettura);
        senzaAttese(versoDiLui);
        senzaAttese(daLui);
        fine = Descrittore(static_cast<int>(::syscall(SYS_pidfd_open, pid, 0)));
    }

    /// Ends it and whatever it started and left in its group.
    void uccidi() const { ::kill(-pid, SIGKILL); }

    /// Waits for its end: known to be near.
    [[nodiscard]] std::optional<int> raccogli() const {
        int stato = 0;
        if (riprovando([&] { return ::waitpid(pid, &stato, 0); }) != pid || !WIFEXITED(stato))
            return std::nullopt;
        return WEXITSTATUS(stato);
    }

private:
    bool avvia(const std::vector<std::string>& parole, const Tubo& ingresso, const Tubo& uscita) {
        std::vector<char*> argv;
        auto copia = parole; // exec takes them as writable
        for (auto& parola : copia)
            argv.push_back(parola.data());
        argv.push_back(nullptr);
        posix_spawn_file_actions_t file;
        posix_spawnattr_t modi;
        sigset_t nessuno;
        ::sigemptyset(&nessuno);
        ::posix_spawn_file_actions_init(&file);
        ::posix_spawnattr_init(&modi);
        ::posix_spawn_file_actions_adddup2(&file, ingresso.lettura.fd(), STDIN_FILENO);
        ::posix_spawn_file_actions_adddup2(&file, uscita.scrittura.fd(), STDOUT_FILENO);
        ::posix_spawnattr_setflags(&modi, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK);
        ::posix_spawnattr_setsigmask(&modi, &nessuno);
        const int esito = ::posix_spawnp(&pid, argv[0], &file, &modi, argv.data(), environ);
        ::posix_spawnattr_destroy(&modi);
        ::posix_spawn_file_actions_destroy(&file);
        if (esito != 0)
            pid = 0;
        return esito == 0;
    }
};

/// Gives what the program takes now; closes its input once it has all, or wants no more.
void alimenta(Figlio& figlio, std::string_view& resto) {
    const auto n = riprovando([&] { return ::write(figlio.versoDiLui.fd(), resto.data(), resto.size()); });
    if (n > 0)
        resto.remove_prefix(static_cast<std::size_t>(n));
    if (resto.empty() || (n < 0 && errno != EAGAIN))
        static_cast<void>(figlio.versoDiLui.chiudi());
}

/// Takes what the program has written by now: no more than a pipe holds, however fast it goes on.
void ascolta(Figlio& figlio, std::string& uscita) {
    std::array<char, 64 * 1024> pezzo;
    const auto n = riprovando([&] { return ::read(figlio.daLui.fd(), pezzo.data(), pezzo.size()); });
    if (n > 0)
        uscita.append(pezzo.data(),
                      std::min(static_cast<std::size_t>(n), Esecutore::kMassimoUscita - uscita.size()));
    else if (n == 0)
        static_cast<void>(figlio.daLui.chiudi());
}

} // namespace

std::optional<FineProgramma> EsecutoreLinux::esegui(const std::vector<std::string>& parole,
                                                    std::string_view ingresso,
                                                    std::chrono::milliseconds limite) {
    const SenzaSigpipe silenzio;
    const Momento scadenza = fra(limite);
    Figlio figlio(parole);
    if (figlio.pid == 0)
        return std::nullopt;
    FineProgramma esito;
    for (bool finito = false; !finito && !esito.scaduto;) {
        // A closed end is -1, which poll() passes over.
        std::array<pollfd, 3> attese{{{figlio.versoDiLui.fd(), POLLOUT, 0},
                                      {figlio.daLui.fd(), POLLIN, 0},
                                      {figlio.fine.fd(), POLLIN, 0}}};
        const int pronti =
            riprovando([&] { return ::poll(attese.data(), attese.size(), restano(scadenza)); });
        finito = attese[2].revents != 0; // seen before the last reading: all that it wrote is there by then
        esito.scaduto = !finito && (pronti <= 0 || restano(scadenza) == 0);
        if (attese[0].revents != 0)
            alimenta(figlio, ingresso);
        if (figlio.daLui.aperto())
            ascolta(figlio, esito.uscita);
    }
    figlio.uccidi(); // what it left running goes with it: its answer has been given
    esito.codice = figlio.raccogli();
    if (esito.scaduto)
        esito.codice.reset();
    return esito;
}

} // namespace lumigrafo
