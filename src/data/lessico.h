#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// An SQL text taken apart. Joined again, the pieces give the text to the letter.
namespace lumigrafo::lessico {

enum class Genere {
    Parola, ///< a keyword or a bare name
    Nome,   ///< a name in brackets or back quotes
    Testo,  ///< a literal in single or double quotes; also an unfinished one
    Numero,
    Simbolo, ///< an operator or a mark
    Vuoto,   ///< blanks and line ends
};

struct Pezzo {
    Genere genere;
    std::string_view testo; ///< points into the text taken apart
};

[[nodiscard]] std::vector<Pezzo> spezza(std::string_view sql);

/// Walks over the pieces that aren't blank. Past the end it gives an empty symbol.
class Lettore {
public:
    explicit Lettore(const std::vector<Pezzo>& pezzi);
    [[nodiscard]] std::size_t quanti() const { return pieni_.size(); }
    [[nodiscard]] const Pezzo& operator[](std::size_t i) const;
    /// The piece's place among all pieces, blanks counted.
    [[nodiscard]] std::size_t posto(std::size_t i) const { return pieni_[i]; }
    /// True if piece `i` is this keyword, in whatever case, or this symbol.
    [[nodiscard]] bool e(std::size_t i, std::string_view parola) const;
    /// True if piece `i` can be the name of a table or column.
    [[nodiscard]] bool nome(std::size_t i) const;

private:
    const std::vector<Pezzo>& pezzi_;
    std::vector<std::size_t> pieni_;
};

/// A name without its brackets or quotes.
[[nodiscard]] std::string nudo(std::string_view nome);
/// A name in double quotes, as SQLite takes any name.
[[nodiscard]] std::string traVirgolette(std::string_view nome);

} // namespace lumigrafo::lessico
