#pragma once

#include <csignal>
#include <sys/resource.h>

namespace lumigrafo::prova {

/// No file of this process grows beyond that many bytes while it lives.
class DiscoPieno {
public:
    explicit DiscoPieno(rlim_t byte) : vecchio_(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &prima_);
        const rlimit ora{byte, prima_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &ora);
    }
    ~DiscoPieno() {
        ::setrlimit(RLIMIT_FSIZE, &prima_);
        std::signal(SIGXFSZ, vecchio_);
    }
    DiscoPieno(const DiscoPieno&) = delete;
    DiscoPieno& operator=(const DiscoPieno&) = delete;

private:
    rlimit prima_{};
    void (*vecchio_)(int);
};

} // namespace lumigrafo::prova
