#pragma once

#include <string>

namespace lumigrafo {

/// Small questions to the machine.
class Sistema {
public:
    virtual ~Sistema() = default;
    /// True if another process of this program already runs from the same program folder. The first call
    /// takes the place for this process, until it ends in whatever way.
    virtual bool istanzaPrecedente() = 0;
    /// One echo of one hop to a dotted address; a host name is no address and fails.
    virtual bool eco(const std::string& indirizzo) = 0;
    /// The operating system's name of the user, at most 99 characters.
    virtual std::string NomeUtente() = 0;
    virtual void bip() = 0;
};

/// The end of the process. `termina` doesn't return; a test's side throws instead.
class Uscita {
public:
    virtual ~Uscita() = default;
    [[noreturn]] virtual void termina(int codice) = 0;
};

} // namespace lumigrafo
