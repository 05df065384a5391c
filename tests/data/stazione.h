#pragma once

#include <string>
#include <sys/types.h>

namespace lumigrafo::prova {

/// A second station: a process that obeys line by line (see aiutante.cpp). It ends with this object.
class Stazione {
public:
    Stazione();
    ~Stazione();
    Stazione(const Stazione&) = delete;
    Stazione& operator=(const Stazione&) = delete;

    /// Sends a line and waits for the answer: "fatto", or number and description of a failure.
    std::string operator()(const std::string& riga);
    /// The two halves of the same.
    void manda(const std::string& riga);
    std::string risposta();
    /// Ends it as a power cut would.
    void uccidi();

private:
    pid_t pid_ = -1;
    int scrivi_ = -1, leggi_ = -1;
};

} // namespace lumigrafo::prova
