#include "platform/linux/descrittore.h"

#include <fcntl.h>
#include <unistd.h>

namespace lumigrafo {

bool Descrittore::chiudi() {
    const int fd = cedi();
    return fd < 0 || ::close(fd) == 0;
}

Descrittore apri(const std::filesystem::path& file, int modo, mode_t permessi) {
    return Descrittore(riprovando([&] { return ::open(file.c_str(), modo | O_CLOEXEC, permessi); }));
}

} // namespace lumigrafo
