#pragma once

#include <string>

namespace lumigrafo {

/// The voice, as the console uses it.
class Annunciatore {
public:
    virtual ~Annunciatore() = default;
    /// Makes the engine ready and chooses its voice; called once, and only where the voice is on.
    virtual void ScegliVoce() = 0;
    /// Speaks the text when those before it are done. Never empty.
    virtual void AccodaAnnuncio(const std::string& testo) = 0;
};

/// The voice, as the cash-desk server and the message dialog use it.
class Parlante {
public:
    virtual ~Parlante() = default;
    /// Speaks the text at once, over anything in progress, and leaves the queue alone. Makes the voice ready
    /// where it isn't yet.
    virtual void Parla(const std::string& testo) = 0;
};

} // namespace lumigrafo
