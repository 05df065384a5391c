#include "platform/linux/processi.h"

#include "platform/conversioni.h"
#include "platform/file.h"

#include <algorithm>
#include <charconv>
#include <csignal>
#include <unistd.h>

namespace lumigrafo {

namespace {

/// The kernel keeps only so much of a process's name; a name of this length may be a cut one.
constexpr std::size_t kNomeTagliato = 15;

std::string senzaExe(std::string_view nome) {
    constexpr std::string_view kExe = ".exe";
    if (nome.size() > kExe.size() && ugualeSenzaMaiuscole(nome.substr(nome.size() - kExe.size()), kExe))
        nome.remove_suffix(kExe.size());
    return std::string(nome);
}

/// Behind the last separator; a program of the other family, run by an emulator, has backslashes in its path.
std::string_view nomeBase(std::string_view percorso) {
    const auto ultimo = percorso.find_last_of("/\\");
    return ultimo == percorso.npos ? percorso : percorso.substr(ultimo + 1);
}

std::string eseguibile(const std::filesystem::path& cartella) {
    std::error_code ec;
    std::string percorso = std::filesystem::read_symlink(cartella / "exe", ec).string();
    constexpr std::string_view kEliminato = " (deleted)"; // as after an update of the running program
    if (percorso.ends_with(kEliminato))
        percorso.resize(percorso.size() - kEliminato.size());
    return percorso;
}

/// Whether the process of this folder of /proc bears the name, given without ".exe".
bool haNome(const std::filesystem::path& cartella, const std::string& nome) {
    const auto riga = leggiFile(cartella / "cmdline");
    if (!riga || riga->empty()) // a part of the kernel, or a process that has ended already
        return false;
    const auto uguale = [&nome](std::string_view altro) { return senzaExe(altro) == nome; };
    if (uguale(nomeBase(riga->substr(0, riga->find('\0')))) || uguale(nomeBase(eseguibile(cartella))))
        return true;
    auto comm = leggiFile(cartella / "comm").value_or("");
    if (comm.ends_with('\n'))
        comm.pop_back();
    return comm.size() < kNomeTagliato && uguale(comm);
}

pid_t aPid(const std::string& nome) {
    pid_t pid = 0;
    const auto [p, errore] = std::from_chars(nome.data(), nome.data() + nome.size(), pid);
    return errore == std::errc() && p == nome.data() + nome.size() ? pid : 0;
}

} // namespace

int ProcessiLinux::termina(const std::string& nome) {
    const std::string cercato = senzaExe(nome);
    if (cercato.empty())
        return 0;
    int trovati = 0;
    std::error_code ec;
    std::filesystem::directory_iterator i("/proc", ec);
    for (; !ec && i != std::filesystem::directory_iterator(); i.increment(ec)) {
        const pid_t pid = aPid(i->path().filename().string());
        if (pid <= 0 || pid == ::getpid() || !haNome(i->path(), cercato))
            continue;
        ::kill(pid, SIGTERM);
        ++trovati;
    }
    return trovati;
}

} // namespace lumigrafo
