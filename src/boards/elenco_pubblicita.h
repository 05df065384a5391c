#pragma once

#include <cstddef>
#include <filesystem>
#include <vector>

namespace lumigrafo {

/// The advertising pictures of a folder, `pubblicita*.jpg` in any case of letters, one after the other in the
/// order in which the file system lists them.
class ElencoPubblicita {
public:
    explicit ElencoPubblicita(std::filesystem::path cartella) : cartella_(std::move(cartella)) {}

    /// The next picture's path; empty at the end of a listing, and the call after that begins a new one. With
    /// n pictures a turn so takes n + 1 calls. A picture that is gone meanwhile is passed over.
    [[nodiscard]] std::filesystem::path prossimo();
    /// True if a listing begun now would give nothing.
    [[nodiscard]] bool vuoto() const { return elenca().empty(); }

private:
    [[nodiscard]] std::vector<std::filesystem::path> elenca() const;

    std::filesystem::path cartella_;
    std::filesystem::path FileCorrente;
    std::vector<std::filesystem::path> elenco_;
    std::size_t prossimo_ = 0;
};

} // namespace lumigrafo
