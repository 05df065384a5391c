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

/// Mends an archive that nobody else has open; where anything was mended a copy of it as it was stays beside
/// it
/// (`copia`). Returns what was done, a line each. Throws Guasto 3045 where another station has it open, and
/// where it is past mending.
[[nodiscard]] std::vector<std::string> riparaArchivio(const std::filesystem::path& file,
                                                      const std::filesystem::path& copia);

} // namespace lumigrafo
