#pragma once

#include <string>
#include <string_view>

namespace lumigrafo::schermo {

/// Gathers a document that comes in pieces. Nothing follows a document and its sender waits for an answer, so
/// its end is where its first bracket closes.
class Arrivo {
public:
    enum class Stato { InCorso, Intero, Rifiutato };

    /// Bytes that a document may have; the link's own have some thousands.
    static constexpr std::size_t kMassimo = 1 << 20;

    /// Takes the next piece. What begins with something else than an object, or is too long, is refused; what
    /// comes behind the end is dropped.
    Stato prendi(std::string_view pezzo);
    [[nodiscard]] const std::string& testo() const { return testo_; }

private:
    /// False where the character can't belong to a document.
    bool segui(char c);

    std::string testo_;
    Stato stato_ = Stato::InCorso;
    std::size_t aperte_ = 0; ///< brackets
    bool inStringa_ = false, dopoBarra_ = false;
};

} // namespace lumigrafo::schermo
