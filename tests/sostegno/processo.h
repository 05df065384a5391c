#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <sys/types.h>
#include <utility>
#include <vector>

namespace lumigrafo::prova {

/// Tries until it is true. False where the time ran out first.
[[nodiscard]] bool attendiChe(std::chrono::milliseconds limite, const std::function<bool()>& vero);

/// Another program, started by a test and ended with it. Its input and its output are pipes.
class Processo {
public:
    using Ambiente = std::vector<std::pair<std::string, std::string>>;

    /// Starts it with these variables on top of the test's own. Throws where that fails.
    explicit Processo(const std::vector<std::string>& comando, const Ambiente& variabili = {});
    ~Processo();
    Processo(const Processo&) = delete;
    Processo& operator=(const Processo&) = delete;

    [[nodiscard]] pid_t pid() const { return pid_; }
    [[nodiscard]] bool vivo();
    void segnala(int segnale) const;
    /// Its exit code, or the signal that ended it, negative; nothing where it still runs after that time.
    [[nodiscard]] std::optional<int> fine(std::chrono::milliseconds limite);
    /// SIGKILL, and waits for its end.
    void uccidi();

    /// Writes a line to its input. Throws where it reads no more.
    void manda(const std::string& riga) const;
    /// The next line of its output, without the line break; nothing at its end or after that time.
    [[nodiscard]] std::optional<std::string> riga(std::chrono::milliseconds limite);
    /// All of its output that hasn't been read. Waits for its end.
    [[nodiscard]] std::string resto();

private:
    [[nodiscard]] bool leggi(std::chrono::milliseconds limite);

    pid_t pid_ = -1;
    int ingresso_ = -1, uscita_ = -1;
    std::string letto_;
    std::optional<int> esito_;
};

/// Runs a program to its end: exit code and output.
std::pair<int, std::string> esegui(const std::vector<std::string>& comando,
                                   const Processo::Ambiente& variabili = {});

} // namespace lumigrafo::prova
