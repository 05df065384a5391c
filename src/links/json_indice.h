#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lumigrafo::json {

/// Finds the place of a name among the names of a large object. Names are compared byte by byte, so upper and
/// lower case differ. Names may come in behind the known ones, and for any other change a new index is due.
class IndiceNomi {
public:
    static constexpr std::size_t kAssente = static_cast<std::size_t>(-1);

    /// Place of `nome` in `nomi`, or kAssente.
    [[nodiscard]] std::size_t trova(const std::vector<std::string>& nomi, std::string_view nome);
    /// The same, but an unknown name is learnt at once, as the one that its owner adds to `nomi` next.
    [[nodiscard]] std::size_t trovaPerAggiungere(const std::vector<std::string>& nomi, std::string_view nome);

private:
    [[nodiscard]] std::size_t trova(const std::vector<std::string>& nomi, std::string_view nome,
                                    std::uint32_t h) const;
    void impara(const std::vector<std::string>& nomi);
    void allarga(std::size_t nomi);
    void aggiungi(std::uint32_t impronta);
    void inserisci(std::size_t posto);

    std::vector<std::uint32_t> impronte_; ///< of each name, by place
    std::vector<std::uint32_t> caselle_;  ///< place + 1, 0 where free; a power of two of them
};

} // namespace lumigrafo::json
