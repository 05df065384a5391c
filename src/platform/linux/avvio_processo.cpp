#include "platform/guasto.h"
#include "platform/linux/descrittore.h"
#include "platform/linux/processi.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lumigrafo {

namespace {

/// All that the new process needs, made ready beforehand: between fork and exec memory may not be asked for.
struct Ordine {
    std::string programma;
    std::string cartella; ///< empty: the present one
    std::vector<char*> argv;
};

/// In the new process. Ends with the reason in the pipe where the program can't be started; else the pipe
/// closes by itself.
[[noreturn]] void esegui(const Ordine& ordine, int tubo) {
    sigset_t nessuno;
    ::sigemptyset(&nessuno);
    ::sigprocmask(SIG_SETMASK, &nessuno, nullptr);
    const int vuoto = ::open("/dev/null", O_RDONLY); // not the terminal of the station
    if (vuoto > STDIN_FILENO) {
        ::dup2(vuoto, STDIN_FILENO);
        ::close(vuoto);
    }
    if (ordine.cartella.empty() || ::chdir(ordine.cartella.c_str()) == 0)
        ::execvp(ordine.programma.c_str(), ordine.argv.data());
    const int errore = errno;
    [[maybe_unused]] const auto n = ::write(tubo, &errore, sizeof errore);
    ::_exit(127);
}

/// Through a process in between that ends at once: the program becomes the system's child, so nobody has to
/// wait for it, and it loses our terminal, so it lives on when that is closed.
[[noreturn]] void staccaEdEsegui(const Ordine& ordine, int tubo) {
    ::setsid();
    const pid_t pid = ::fork();
    if (pid == 0)
        esegui(ordine, tubo);
    if (pid < 0) {
        const int errore = errno;
        [[maybe_unused]] const auto n = ::write(tubo, &errore, sizeof errore);
    }
    ::_exit(0);
}

/// False where the program couldn't be started.
bool avviaStaccato(const Ordine& ordine) {
    std::array<int, 2> tubo{};
    if (::pipe2(tubo.data(), O_CLOEXEC) != 0)
        return false;
    const Descrittore lettura(tubo[0]);
    Descrittore scrittura(tubo[1]);
    const pid_t pid = ::fork();
    if (pid < 0)
        return false;
    if (pid == 0)
        staccaEdEsegui(ordine, scrittura.fd());
    (void)scrittura.chiudi();
    riprovando([&] { return ::waitpid(pid, nullptr, 0); });
    int errore = 0;
    return riprovando([&] { return ::read(lettura.fd(), &errore, sizeof errore); }) == 0;
}

} // namespace

void ProcessiLinux::avvia(const std::filesystem::path& programma, const std::vector<std::string>& argomenti,
                          StileFinestra) {
    const bool conCartella = programma.has_parent_path();
    std::error_code ec;
    const auto vero = conCartella ? std::filesystem::absolute(programma, ec) : programma;
    Ordine ordine{vero.string(), conCartella ? vero.parent_path().string() : std::string(), {}};
    auto parole = argomenti; // exec takes them as writable
    ordine.argv.push_back(ordine.programma.data());
    for (auto& parola : parole)
        ordine.argv.push_back(parola.data());
    ordine.argv.push_back(nullptr);
    if (programma.empty() || ec || !avviaStaccato(ordine))
        throw Guasto(guasti::kFileNonTrovato);
}

} // namespace lumigrafo
