#pragma once

#include <filesystem>

namespace lumigrafo {

/// The desktop's own arrangement of monitors.
class Desktop {
public:
    virtual ~Desktop() = default;
    /// Extends the desktop over every monitor that is connected. Returns at once; the monitors come up
    /// meanwhile. Throws Guasto 53 where the machine has no means for it.
    virtual void estendi() = 0;
    /// Opens the system's display settings for the operator. `comandi` is the batch file that does so on the
    /// first platform; elsewhere the desktop's own program is started. Throws Guasto 53 where there is none.
    virtual void apriImpostazioni(const std::filesystem::path& comandi) = 0;
    /// Starts the system's on-screen keyboard. `programma` is the one of the first platform, started
    /// minimised; elsewhere it is what the desktop has. Throws Guasto 53 where there is none.
    virtual void apriTastiera(const std::filesystem::path& programma) = 0;
};

} // namespace lumigrafo
