#include "platform/linux/istanza.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <functional>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace lumigrafo {

namespace {

constexpr const char* kFileBlocco = ".lumigrafo.blocco";

/// A lock that belongs to the open file and not to the process, so that it ends with the last holder of
/// either; a change of its kind leaves no moment without it.
bool cambia(const Descrittore& f, short tipo, int comando) {
    struct flock blocco {};
    blocco.l_type = tipo;
    blocco.l_whence = SEEK_SET;
    return riprovando([&] { return ::fcntl(f.fd(), comando, &blocco); }) == 0;
}

Descrittore apriFile(const std::filesystem::path& file) {
    auto f = apri(file, O_RDWR | O_CREAT | O_NOFOLLOW, 0666);
    if (f.aperto())
        (void)::fchmod(f.fd(), 0666); // whoever else may use the folder must be able to lock it too
    return f;
}

/// A name for the program folder in a place that other folders' programs share.
std::filesystem::path fileDiRipiego(const std::filesystem::path& cartella) {
    std::error_code ec;
    const auto vera = std::filesystem::weakly_canonical(cartella, ec);
    const auto segno = std::hash<std::string>{}((ec ? cartella : vera).string());
    const char* utente = std::getenv("XDG_RUNTIME_DIR");
    const std::filesystem::path base = utente && *utente ? utente : "/tmp";
    return base / (kFileBlocco + std::string(".") + std::to_string(::getuid()) + "." + std::to_string(segno));
}

} // namespace

bool Istanza::apriBlocco() {
    if (!blocco_.aperto())
        blocco_ = apriFile(cartella_ / kFileBlocco);
    if (!blocco_.aperto())
        blocco_ = apriFile(fileDiRipiego(cartella_));
    return blocco_.aperto();
}

bool Istanza::precedente() {
    if (!apriBlocco())
        return false; // nowhere to look: better to run than never to start
    const bool solo = cambia(blocco_, F_WRLCK, F_OFD_SETLK);
    const bool altri = !solo && (errno == EAGAIN || errno == EACCES);
    // All who are there share the lock. Only a newcomer who looks holds it alone, and for no longer than
    // this.
    cambia(blocco_, F_RDLCK, F_OFD_SETLKW);
    return altri;
}

} // namespace lumigrafo
