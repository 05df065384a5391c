#pragma once

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace lumigrafo::prova {

/// A folder of its own for one test, gone with it.
class CartellaTemporanea {
public:
    CartellaTemporanea() {
        std::string modello = (std::filesystem::temp_directory_path() / "lumigrafo-XXXXXX").string();
        if (!::mkdtemp(modello.data()))
            throw std::runtime_error("no temporary folder");
        percorso_ = modello;
    }
    ~CartellaTemporanea() {
        std::error_code ignorato;
        std::filesystem::permissions(percorso_, std::filesystem::perms::owner_all, ignorato);
        std::filesystem::remove_all(percorso_, ignorato);
    }
    CartellaTemporanea(const CartellaTemporanea&) = delete;
    CartellaTemporanea& operator=(const CartellaTemporanea&) = delete;
    [[nodiscard]] const std::filesystem::path& percorso() const { return percorso_; }

private:
    std::filesystem::path percorso_;
};

} // namespace lumigrafo::prova
