#pragma once

#include <csignal>
#include <ctime>

namespace lumigrafo {

/// While it lives, a write to a pipe that nobody reads any more fails instead of ending the process.
class SenzaSigpipe {
public:
    SenzaSigpipe() {
        ::sigemptyset(&solo_);
        ::sigaddset(&solo_, SIGPIPE);
        ::pthread_sigmask(SIG_BLOCK, &solo_, &prima_);
    }
    ~SenzaSigpipe() {
        const timespec subito{};
        while (::sigtimedwait(&solo_, nullptr, &subito) == SIGPIPE) {
        }
        ::pthread_sigmask(SIG_SETMASK, &prima_, nullptr);
    }
    SenzaSigpipe(const SenzaSigpipe&) = delete;
    SenzaSigpipe& operator=(const SenzaSigpipe&) = delete;

private:
    sigset_t solo_{}, prima_{};
};

} // namespace lumigrafo
