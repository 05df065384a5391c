#pragma once

#include <filesystem>
#include <string>

namespace lumigrafo {

/// A path as the texts of the program hold it, and back.
[[nodiscard]] inline std::string testoUtf8(const std::filesystem::path& percorso) {
    const std::u8string testo = percorso.u8string();
    return {testo.begin(), testo.end()};
}
[[nodiscard]] inline std::filesystem::path percorsoUtf8(const std::string& testo) {
    return std::u8string(testo.begin(), testo.end());
}

} // namespace lumigrafo
