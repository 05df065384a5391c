#pragma once

#include <filesystem>
#include <string>

namespace lumigrafo {

/// What the chooser says and where it begins.
struct RichiestaFile {
    std::string titolo;
    std::string filtro; ///< words for people and patterns: "Immagini (*.jpg)"
    std::filesystem::path cartella;
};

/// Lets the operator choose a file.
class SceltaFile {
public:
    virtual ~SceltaFile() = default;
    /// Modal; events pass meanwhile. Empty where the operator gave it up.
    [[nodiscard]] virtual std::filesystem::path scegli(const RichiestaFile& richiesta) = 0;
};

} // namespace lumigrafo
