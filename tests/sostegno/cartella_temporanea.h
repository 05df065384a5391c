#pragma once

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <utility>

namespace lumigrafo::prova {

/// A folder of its own for one test, gone with it; or one that is there already and stays.
class CartellaTemporanea {
public:
    explicit CartellaTemporanea(std::filesystem::path esistente)
        : percorso_(std::move(esistente)), resta_(true) {}
    CartellaTemporanea() : CartellaTemporanea(std::filesystem::temp_directory_path(), 0) {}
    /// In memory where the system has such a folder: for tests that write much and needn't survive a power
    /// cut.
    [[nodiscard]] static CartellaTemporanea inMemoria() {
        const std::filesystem::path memoria = "/dev/shm";
        std::error_code ignorato;
        return {std::filesystem::exists(memoria, ignorato) ? memoria : std::filesystem::temp_directory_path(),
                0};
    }
    ~CartellaTemporanea() {
        if (resta_)
            return;
        std::error_code ignorato;
        std::filesystem::permissions(percorso_, std::filesystem::perms::owner_all, ignorato);
        std::filesystem::remove_all(percorso_, ignorato);
    }
    CartellaTemporanea(const CartellaTemporanea&) = delete;
    CartellaTemporanea& operator=(const CartellaTemporanea&) = delete;
    [[nodiscard]] const std::filesystem::path& percorso() const { return percorso_; }

private:
    CartellaTemporanea(const std::filesystem::path& dove, int) {
        std::string modello = (dove / "lumigrafo-XXXXXX").string();
        if (!::mkdtemp(modello.data()))
            throw std::runtime_error("no temporary folder");
        percorso_ = modello;
    }

    std::filesystem::path percorso_;
    bool resta_ = false;
};

} // namespace lumigrafo::prova
