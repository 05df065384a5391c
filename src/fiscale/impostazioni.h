#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace lumigrafo {

/// Where receipts go.
enum class TipoDriver : std::uint8_t { File, Rete, Dispositivo, Coda, Programma };
inline constexpr std::size_t kTipiDriver = 5;

inline constexpr const char* kFileFiscale = "Fiscale.ini";
inline constexpr int kRigheIntestazione = 4;
inline constexpr int kRighePiede = 3;
inline constexpr int kMinimoCaratteri = 24, kMassimoCaratteri = 64;
inline constexpr std::uint16_t kPortaStampante = 9100;

/// The component's own settings, in `Fiscale.ini` of the program folder.
struct ImpostazioniFiscali {
    TipoDriver driver = TipoDriver::File;
    /// By driver: folder, "address" or "address:port", device file, queue, program. Empty for the folder
    /// stands for "Scontrini" in the program folder.
    std::array<std::string, kTipiDriver> indirizzi;
    std::array<std::string, kRigheIntestazione> intestazione; ///< empty lines aren't printed
    std::array<std::string, kRighePiede> piede;
    int caratteri = 42;         ///< a line, kMinimoCaratteri to kMassimoCaratteri
    bool controllaStato = true; ///< ask the printer; off for one that answers nothing
    bool euro1252 = false;      ///< the printer's page is 1252, not 858
    int selettore = 19;         ///< the number by which the printer knows that page
    int limite = 15;            ///< seconds of a whole attempt, 3 to 60

    [[nodiscard]] std::string& indirizzo() { return indirizzi[static_cast<std::size_t>(driver)]; }
    [[nodiscard]] const std::string& indirizzo() const { return indirizzi[static_cast<std::size_t>(driver)]; }

    friend bool operator==(const ImpostazioniFiscali&, const ImpostazioniFiscali&) = default;
};

/// A value out of its range is brought to its nearest end; a text that is no number gives the default.
[[nodiscard]] ImpostazioniFiscali leggiImpostazioniFiscali(const std::filesystem::path& cartellaProgramma);

/// False where the file can't be written.
[[nodiscard]] bool scriviImpostazioniFiscali(const std::filesystem::path& cartellaProgramma,
                                             const ImpostazioniFiscali& impostazioni);

/// What is wrong with them, in Italian; empty where receipts can be printed with them.
[[nodiscard]] std::string difetto(const ImpostazioniFiscali& impostazioni);

/// "192.168.1.50:9100" taken apart; the port is kPortaStampante where none is given, 0 where it is none.
struct IndirizzoStampante {
    std::string host;
    std::uint16_t porta = 0;
};
[[nodiscard]] IndirizzoStampante dividiIndirizzo(std::string_view testo);

} // namespace lumigrafo
