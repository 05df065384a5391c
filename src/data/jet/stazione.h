#pragma once

#include "platform/file_condiviso.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <unordered_set>
#include <vector>

namespace lumigrafo::jet {

/// This program as one of the stations at work on an archive: its entry and its locks in the file beside it
/// that all stations share (same name, extension .ldb). Locks lie far beyond that file's end; none is ever
/// put on the archive itself. The file stays when the last station leaves: an entry means a station only
/// while its lock is held.
class Stazione {
public:
    static constexpr unsigned kMassimo = 255;

    /// Takes the first free user number for which `libero` says yes. Throws Guasto 3239 where all are taken,
    /// 3050 where the folder's file system knows no locks or the file can't be made.
    template <typename Libero>
    Stazione(const std::filesystem::path& archivio, const std::string& computer, Libero&& libero)
        : Stazione(archivio) {
        for (unsigned u = 1; u <= kMassimo; ++u)
            if (libero(u) && prendi(u, computer))
                return;
        tuttiPresi();
    }

    [[nodiscard]] unsigned utente() const { return utente_; }
    /// False where somebody has removed or replaced the file: stations that come later lock another one.
    [[nodiscard]] bool valida() const { return file_.alSuoPosto(); }
    /// Whether a station other than this one is there under that number (1 to 255).
    [[nodiscard]] bool presente(unsigned utente) const;

    /// Tells the others that this station has a table open, from now on for as long as it is there. False
    /// where another one keeps it for itself.
    [[nodiscard]] bool apriTabella(std::uint32_t tabella, bool scrive);
    /// The computer of the station that does; empty where it can't be told any more.
    [[nodiscard]] std::string titolareTabella(std::uint32_t tabella) const;

    /// Keeps all others from writing a page until `sblocca`; false where another does so already. Locking
    /// again what is locked is true.
    [[nodiscard]] bool blocca(std::uint32_t pagina);
    [[nodiscard]] bool tiene(std::uint32_t pagina) const { return bloccate_.contains(pagina); }
    /// Asks the stations of this program to begin nothing new, for the good of this one, which has waited
    /// long. One at a time can ask. False where another one does.
    bool chiediPrecedenza();
    void rendiPrecedenza();
    [[nodiscard]] bool precede() const { return precede_; }
    /// Whether another station asks for it.
    [[nodiscard]] bool precedeUnAltra() const;
    /// How many pages are locked; `sbloccaDa` gives back those that were locked beyond so many.
    [[nodiscard]] std::size_t quanteBloccate() const { return ordine_.size(); }
    void sbloccaDa(std::size_t quante);
    /// The user number of the station that holds the page; 0 where it can't be told any more.
    [[nodiscard]] unsigned titolare(std::uint32_t pagina) const;
    /// The computer of the station with that number; empty for 0, or where it has left no name.
    [[nodiscard]] std::string nomeDi(unsigned utente) const;

private:
    explicit Stazione(const std::filesystem::path& archivio);
    bool prendi(unsigned utente, const std::string& computer);
    /// 0: nobody, any more.
    [[nodiscard]] unsigned chiBlocca(std::uint64_t inizio, bool ancheCondiviso) const;
    [[noreturn]] static void tuttiPresi();
    [[nodiscard]] FileCondiviso::Intervallo scrittura(std::uint32_t pagina) const;

    FileCondiviso file_;
    unsigned utente_ = 0;
    bool precede_ = false;
    std::unordered_set<std::uint32_t> lette_, scritte_; ///< tables
    std::unordered_set<std::uint32_t> bloccate_;
    std::vector<std::uint32_t> ordine_; ///< the same, as they were taken
};

} // namespace lumigrafo::jet
