#include "platform/file_condiviso.h"

#include "platform/guasto.h"
#include "platform/linux/descrittore.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lumigrafo {

namespace {

[[noreturn]] void guastoDelSistema() {
    switch (errno) {
    case ENOENT:
    case ENOTDIR:
        throw Guasto(guasti::kFileNonTrovato);
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
    case EBUSY:
    case ETXTBSY:
        throw Guasto(guasti::kAccesso);
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        throw Guasto(guasti::kDiscoPieno);
    default:
        throw Guasto(guasti::kErroreIO);
    }
}

int modoDi(FileCondiviso::Modo modo) {
    switch (modo) {
    case FileCondiviso::Modo::Lettura:
        return O_RDONLY;
    case FileCondiviso::Modo::Scrittura:
        return O_RDWR;
    case FileCondiviso::Modo::CreaSeManca:
        return O_RDWR | O_CREAT;
    }
    return O_RDONLY;
}

/// Locks of the open file, not of the process: closing another descriptor of the same file doesn't drop them.
struct flock richiesta(FileCondiviso::Intervallo i, short tipo) {
    struct flock f {};
    f.l_type = tipo;
    f.l_whence = SEEK_SET;
    f.l_start = static_cast<off_t>(i.inizio);
    f.l_len = static_cast<off_t>(i.lunghezza);
    return f;
}

int comanda(std::intptr_t maniglia, int comando, struct flock& f) {
    return riprovando([&] { return ::fcntl(static_cast<int>(maniglia), comando, &f); });
}

} // namespace

FileCondiviso::FileCondiviso(const std::filesystem::path& file, Modo modo)
    : file_(std::filesystem::absolute(file)) {
    auto f = apri(file, modoDi(modo), 0666);
    if (!f.aperto())
        guastoDelSistema();
    maniglia_ = f.cedi();
}

FileCondiviso::~FileCondiviso() {
    (void)Descrittore(static_cast<int>(maniglia_)).chiudi();
}

FileCondiviso::FileCondiviso(FileCondiviso&& altro) noexcept
    : file_(std::move(altro.file_)), maniglia_(std::exchange(altro.maniglia_, -1)) {}

FileCondiviso& FileCondiviso::operator=(FileCondiviso&& altro) noexcept {
    std::swap(file_, altro.file_);
    std::swap(maniglia_, altro.maniglia_);
    return *this;
}

bool FileCondiviso::alSuoPosto() const {
    struct stat aperto {};
    struct stat nominato {};
    return ::fstat(static_cast<int>(maniglia_), &aperto) == 0 && ::stat(file_.c_str(), &nominato) == 0 &&
           aperto.st_dev == nominato.st_dev && aperto.st_ino == nominato.st_ino;
}

std::uint64_t FileCondiviso::lunghezza() const {
    struct stat s {};
    if (::fstat(static_cast<int>(maniglia_), &s) != 0)
        guastoDelSistema();
    return static_cast<std::uint64_t>(s.st_size);
}

std::size_t FileCondiviso::leggi(std::uint64_t posto, std::span<std::uint8_t> byte) const {
    std::size_t letti = 0;
    while (letti < byte.size()) {
        const auto n = riprovando([&] {
            return ::pread(static_cast<int>(maniglia_), byte.data() + letti, byte.size() - letti,
                           static_cast<off_t>(posto + letti));
        });
        if (n < 0)
            guastoDelSistema();
        if (n == 0)
            break;
        letti += static_cast<std::size_t>(n);
    }
    return letti;
}

void FileCondiviso::scrivi(std::uint64_t posto, std::span<const std::uint8_t> byte) {
    while (!byte.empty()) {
        const auto n = riprovando([&] {
            return ::pwrite(static_cast<int>(maniglia_), byte.data(), byte.size(), static_cast<off_t>(posto));
        });
        if (n <= 0)
            guastoDelSistema();
        byte = byte.subspan(static_cast<std::size_t>(n));
        posto += static_cast<std::uint64_t>(n);
    }
}

void FileCondiviso::tronca(std::uint64_t lunghezza) {
    if (riprovando([&] { return ::ftruncate(static_cast<int>(maniglia_), static_cast<off_t>(lunghezza)); }) !=
        0)
        guastoDelSistema();
}

void FileCondiviso::consolida() {
    if (riprovando([&] { return ::fdatasync(static_cast<int>(maniglia_)); }) != 0)
        guastoDelSistema();
}

FileCondiviso::Esito FileCondiviso::blocca(Intervallo intervallo, bool esclusivo) {
    struct flock f = richiesta(intervallo, esclusivo ? F_WRLCK : F_RDLCK);
    if (comanda(maniglia_, F_OFD_SETLK, f) == 0)
        return Esito::Preso;
    return errno == EAGAIN || errno == EACCES ? Esito::Occupato : Esito::NonPossibile;
}

void FileCondiviso::sblocca(Intervallo intervallo) {
    struct flock f = richiesta(intervallo, F_UNLCK);
    (void)comanda(maniglia_, F_OFD_SETLK, f);
}

std::optional<FileCondiviso::Intervallo> FileCondiviso::bloccoAltrui(Intervallo intervallo,
                                                                     bool esclusivo) const {
    struct flock f = richiesta(intervallo, esclusivo ? F_WRLCK : F_RDLCK);
    if (comanda(maniglia_, F_OFD_GETLK, f) != 0 || f.l_type == F_UNLCK)
        return std::nullopt;
    return Intervallo{static_cast<std::uint64_t>(f.l_start), static_cast<std::uint64_t>(f.l_len)};
}

} // namespace lumigrafo
