#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace lumigrafo {

/// What was found in an archive, in Italian, a line each.
struct EsitoVerifica {
    std::vector<std::string> discordanze; ///< empty: the archive is sound
    std::vector<std::string> note;        ///< oddities that do no harm, and what was looked at
};

/// Walks an archive of either format and tells what in it disagrees; other stations may be at work. Throws
/// Guasto where it can't be opened.
[[nodiscard]] EsitoVerifica verificaArchivio(const std::filesystem::path& file);

} // namespace lumigrafo
