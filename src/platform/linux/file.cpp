#include "platform/file.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/guasto.h"

namespace lumigrafo {

namespace {

int apri(const std::filesystem::path& file, int modo, mode_t permessi = 0644) {
    int fd;
    do
        fd = ::open(file.c_str(), modo | O_CLOEXEC, permessi);
    while (fd < 0 && errno == EINTR);
    return fd;
}

bool scriviTutto(int fd, std::string_view dati) {
    while (!dati.empty()) {
        const ssize_t n = ::write(fd, dati.data(), dati.size());
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return false;
        dati.remove_prefix(static_cast<std::size_t>(n));
    }
    return true;
}

bool blocca(int fd, int modo) {
    int esito;
    do
        esito = ::flock(fd, modo);
    while (esito != 0 && errno == EINTR);
    return esito == 0;
}

/// Whether the open file is still the one that bears the name: it may have been deleted by its last holder
/// between our open and our lock.
bool stessoFile(int fd, const std::filesystem::path& file) {
    struct stat aperto {}, nominato {};
    return ::fstat(fd, &aperto) == 0 && ::stat(file.c_str(), &nominato) == 0 &&
           aperto.st_ino == nominato.st_ino && aperto.st_dev == nominato.st_dev;
}

} // namespace

std::optional<std::string> leggiFile(const std::filesystem::path& file) {
    const int fd = apri(file, O_RDONLY);
    if (fd < 0)
        return std::nullopt;
    std::string testo;
    struct stat s {};
    if (::fstat(fd, &s) == 0 && S_ISREG(s.st_mode))
        testo.reserve(static_cast<std::size_t>(s.st_size) + 1);
    char pezzo[16384];
    ssize_t n;
    while ((n = ::read(fd, pezzo, sizeof pezzo)) != 0) {
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            break;
        testo.append(pezzo, static_cast<std::size_t>(n));
    }
    ::close(fd);
    return n < 0 ? std::nullopt : std::optional(std::move(testo));
}

bool sostituisciFile(const std::filesystem::path& file, std::string_view contenuto) {
    std::error_code ec;
    auto meta = std::filesystem::is_symlink(file, ec) ? std::filesystem::weakly_canonical(file, ec) : file;
    if (ec)
        meta = file;
    // One name for all writers of this process, so that a killed one leaves at most one stray file behind, which
    // the next write takes over. Writers of one folder exclude each other through BloccoCartella.
    const auto nuovo = std::filesystem::path(meta) += ".nuovo";
    struct stat vecchio {};
    const bool esisteva = ::stat(meta.c_str(), &vecchio) == 0;
    if (esisteva && ::access(meta.c_str(), W_OK) != 0)
        return false;
    const int fd = apri(nuovo, O_WRONLY | O_CREAT | O_TRUNC);
    if (fd < 0)
        return false;
    bool bene = scriviTutto(fd, contenuto);
    if (bene && esisteva)
        (void)::fchmod(fd, vecchio.st_mode & 07777);
    bene = bene && ::fdatasync(fd) == 0;
    bene = ::close(fd) == 0 && bene;
    bene = bene && ::rename(nuovo.c_str(), meta.c_str()) == 0;
    if (!bene)
        ::unlink(nuovo.c_str());
    return bene;
}

BloccoCartella::BloccoCartella(const std::filesystem::path& cartella) {
    const int fd = apri(cartella, O_RDONLY | O_DIRECTORY);
    if (fd < 0)
        return;
    if (!blocca(fd, LOCK_EX)) {
        ::close(fd);
        return;
    }
    maniglia_ = fd;
}

BloccoCartella::~BloccoCartella() {
    if (maniglia_ != -1)
        ::close(static_cast<int>(maniglia_));
}

FileEsclusivo::FileEsclusivo(const std::filesystem::path& file) {
    for (;;) {
        const int fd = apri(file, O_WRONLY | O_CREAT, 0666);
        if (fd < 0)
            throw Guasto(errno == ENOENT || errno == ENOTDIR      ? guasti::kPercorso
                         : errno == EACCES || errno == EROFS || errno == EPERM ? guasti::kPermessoNegato
                                                                  : guasti::kErroreIO);
        if (!blocca(fd, LOCK_EX | LOCK_NB)) {
            ::close(fd);
            throw Guasto(guasti::kPermessoNegato);
        }
        if (stessoFile(fd, file)) {
            if (::ftruncate(fd, 0) != 0) {
                ::close(fd);
                throw Guasto(guasti::kErroreIO);
            }
            maniglia_ = fd;
            return;
        }
        ::close(fd); // the former holder deleted it in between: try on the new one
    }
}

FileEsclusivo::~FileEsclusivo() {
    if (maniglia_ != -1)
        ::close(static_cast<int>(maniglia_));
}

void eliminaSeLibero(const std::filesystem::path& file) {
    const int fd = apri(file, O_RDONLY);
    if (fd < 0)
        throw Guasto(errno == ENOENT || errno == ENOTDIR ? guasti::kFileNonTrovato : guasti::kPermessoNegato);
    const bool libero = blocca(fd, LOCK_EX | LOCK_NB);
    // A file that is no longer the one of this name belongs to a new holder.
    const bool eliminato = libero && stessoFile(fd, file) && ::unlink(file.c_str()) == 0;
    ::close(fd);
    if (!eliminato)
        throw Guasto(guasti::kPermessoNegato);
}

} // namespace lumigrafo
