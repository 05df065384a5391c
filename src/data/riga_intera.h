#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lumigrafo {

/// A field's value among those of many rows. Texts lie elsewhere, one behind the other.
struct Cella {
    enum class Tipo : std::uint8_t { Nullo, Intero, Doppio, Testo };
    union {
        std::int64_t intero;
        double doppio;
        std::size_t inizio; ///< of a text among all texts
    };
    std::uint32_t lunghezza; ///< of a text, in bytes
    Tipo tipo;
};

/// A row put together to one value. SQLite hands out a row field by field, with several calls for each; a
/// table that offers its rows in one piece spares them to whoever reads a long queue.
class RigaIntera {
public:
    /// The hidden column that such a table has behind its own ones, and its type, which tells it from a
    /// column that another program gave that name.
    static constexpr const char* kColonna = "riga!";
    static constexpr const char* kTipo = "RIGA";

    /// Begins a row anew, with the memory kept.
    void azzera();
    void nullo() { celle_.push_back({.intero = 0, .lunghezza = 0, .tipo = Cella::Tipo::Nullo}); }
    void intero(std::int64_t n) {
        celle_.push_back({.intero = n, .lunghezza = 0, .tipo = Cella::Tipo::Intero});
    }
    /// What is no number becomes a null, as everywhere in SQLite.
    void doppio(double n);
    void testo(std::string_view testo);
    void byte(std::string_view byte) { testo(byte); }
    /// The row; it stands until the next `azzera`.
    [[nodiscard]] std::string_view composta();

    /// Takes a row of exactly that many cells apart; its texts are put behind those in `testi`.
    static void scomponi(std::string_view composta, std::span<Cella> celle, std::string& testi);

private:
    std::vector<Cella> celle_;
    std::string testi_, composta_;
};

} // namespace lumigrafo
