#pragma once

#include <string>

namespace lumigrafo {

enum class Icona { Nessuna, Critica, Domanda, Esclamazione, Informazione };
enum class Bottoni { Ok, SiNo };
enum class Risposta { Ok, Si, No };

/// What a message box says. Line ends in the text are CR LF or LF.
struct Avviso {
    std::string testo;
    std::string titolo; ///< empty: the program's own name
    Icona icona = Icona::Nessuna;
    Bottoni bottoni = Bottoni::Ok;
};

/// Message boxes. Each is modal: the caller waits, and other events run meanwhile.
class Avvisi {
public:
    virtual ~Avvisi() = default;
    virtual Risposta chiedi(const Avviso& avviso) = 0;
};

} // namespace lumigrafo
