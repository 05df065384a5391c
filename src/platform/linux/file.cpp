#include "platform/file.h"

#include "platform/guasto.h"
#include "platform/linux/descrittore.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lumigrafo {

namespace {

bool scriviTutto(int fd, std::string_view dati) {
    while (!dati.empty()) {
        const auto n = riprovando([&] { return ::write(fd, dati.data(), dati.size()); });
        if (n <= 0)
            return false;
        dati.remove_prefix(static_cast<std::size_t>(n));
    }
    return true;
}

bool blocca(const Descrittore& f, int modo) {
    return riprovando([&] { return ::flock(f.fd(), modo); }) == 0;
}

/// Whether the open file is still the one that bears the name: it may have been deleted or renamed by its
/// last holder between our open and our lock.
bool stessoFile(const Descrittore& f, const std::filesystem::path& file) {
    struct stat aperto {
    }, nominato{};
    return ::fstat(f.fd(), &aperto) == 0 && ::stat(file.c_str(), &nominato) == 0 &&
           aperto.st_ino == nominato.st_ino && aperto.st_dev == nominato.st_dev;
}

/// A file that only this writer fills, and its name. All writers of a file share the one name, so that one
/// who is killed leaves at most one stray file behind, which the next takes over; each waits for the lock on
/// it. The lock goes with the file when it is renamed, so a writer who waited looks whether it still holds
/// the name.
struct Nuovo {
    std::filesystem::path nome;
    Descrittore f;
};

Nuovo apriNuovo(const std::filesystem::path& file) {
    const auto comune = std::filesystem::path(file) += ".nuovo";
    constexpr int kModo = O_WRONLY | O_CREAT | O_NOFOLLOW;
    for (;;) {
        auto f = apri(comune, kModo);
        if (!f.aperto() || !blocca(f, LOCK_EX)) {
            // Another user's, or a file system without locks: a name of our own keeps the others out too.
            auto proprio = std::filesystem::path(comune) += std::to_string(::getpid());
            f = apri(proprio, kModo | O_TRUNC);
            return {std::move(proprio), std::move(f)};
        }
        if (stessoFile(f, comune))
            return {comune, ::ftruncate(f.fd(), 0) == 0 ? std::move(f) : Descrittore()};
    }
}

/// Owner and permissions of the old file, before there is anything to read in the new one. The owner first:
/// its change clears some permissions. Only a privileged process may give a file away, and some file systems
/// know no permissions: then the new file stays as it was made.
void somiglia(const Descrittore& f, const struct stat& vecchio) {
    [[maybe_unused]] const int proprietario = ::fchown(f.fd(), vecchio.st_uid, vecchio.st_gid);
    (void)::fchmod(f.fd(), vecchio.st_mode & 07777);
}

/// Failures of an open as the program's own number.
[[noreturn]] void guastoDiApertura(int assente) {
    switch (errno) {
    case ENOENT:
    case ENOTDIR:
        throw Guasto(assente);
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
        throw Guasto(guasti::kAccesso);
    default:
        throw Guasto(guasti::kErroreIO);
    }
}

/// Takes the hold of a FileEsclusivo, or throws.
void prendi(const Descrittore& f) {
    if (!blocca(f, LOCK_EX | LOCK_NB))
        throw Guasto(errno == EWOULDBLOCK ? guasti::kPermessoNegato : guasti::kErroreIO);
}

} // namespace

std::optional<std::string> leggiFile(const std::filesystem::path& file) {
    const auto f = apri(file, O_RDONLY);
    if (!f.aperto())
        return std::nullopt;
    std::string testo;
    struct stat s {};
    if (::fstat(f.fd(), &s) == 0 && S_ISREG(s.st_mode))
        testo.reserve(static_cast<std::size_t>(s.st_size) + 1);
    char pezzo[16384];
    for (;;) {
        const auto n = riprovando([&] { return ::read(f.fd(), pezzo, sizeof pezzo); });
        if (n < 0)
            return std::nullopt;
        if (n == 0)
            return testo;
        testo.append(pezzo, static_cast<std::size_t>(n));
    }
}

std::filesystem::path fileVero(const std::filesystem::path& file) {
    constexpr int kCatenaMassima = 40; // as many links as the system follows
    auto vero = file;
    std::error_code ec;
    for (int i = 0; i < kCatenaMassima && std::filesystem::is_symlink(vero, ec); ++i) {
        const auto meta = std::filesystem::read_symlink(vero, ec);
        if (ec)
            break;
        vero = vero.parent_path() / meta; // an absolute target replaces the whole
    }
    return vero;
}

bool sostituisciFile(const std::filesystem::path& file, std::string_view contenuto) {
    const auto meta = fileVero(file);
    struct stat vecchio {};
    const bool esisteva = ::stat(meta.c_str(), &vecchio) == 0;
    if (esisteva && (!S_ISREG(vecchio.st_mode) || ::access(meta.c_str(), W_OK) != 0))
        return false;
    auto [nuovo, f] = apriNuovo(meta);
    if (!f.aperto())
        return false;
    if (esisteva)
        somiglia(f, vecchio);
    bool bene = scriviTutto(f.fd(), contenuto);
    bene = bene && ::fdatasync(f.fd()) == 0;
    // Renamed while the lock still stands: a waiting writer must not take the finished file over.
    bene = bene && ::rename(nuovo.c_str(), meta.c_str()) == 0;
    if (!bene)
        ::unlink(nuovo.c_str());
    return bene;
}

BloccoCartella::BloccoCartella(const std::filesystem::path& cartella) {
    auto f = apri(cartella.empty() ? "." : cartella, O_RDONLY | O_DIRECTORY);
    if (f.aperto() && blocca(f, LOCK_EX))
        maniglia_ = f.cedi();
}

BloccoCartella::~BloccoCartella() {
    (void)Descrittore(static_cast<int>(maniglia_)).chiudi();
}

FileEsclusivo::FileEsclusivo(const std::filesystem::path& file) {
    for (;;) {
        auto f = apri(file, O_WRONLY | O_CREAT, 0666);
        if (!f.aperto())
            guastoDiApertura(guasti::kPercorso);
        prendi(f);
        if (!stessoFile(f, file))
            continue; // the former holder deleted it in between: try on the new one
        if (::ftruncate(f.fd(), 0) != 0)
            throw Guasto(guasti::kErroreIO);
        maniglia_ = f.cedi();
        return;
    }
}

FileEsclusivo::~FileEsclusivo() {
    (void)Descrittore(static_cast<int>(maniglia_)).chiudi();
}

void eliminaSeLibero(const std::filesystem::path& file) {
    // For writing where it may be: some network file systems lock nothing else.
    auto f = apri(file, O_WRONLY);
    if (!f.aperto() && errno != ENOENT)
        f = apri(file, O_RDONLY);
    if (!f.aperto())
        guastoDiApertura(guasti::kFileNonTrovato);
    prendi(f);
    if (!stessoFile(f, file)) // by now the name belongs to a new holder
        throw Guasto(guasti::kPermessoNegato);
    if (::unlink(file.c_str()) != 0)
        guastoDiApertura(guasti::kFileNonTrovato);
}

} // namespace lumigrafo
