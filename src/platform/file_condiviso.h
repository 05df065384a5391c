#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>

namespace lumigrafo {

/// A file that several stations read and write at any place, and ranges of it that they lock against each
/// other. A range may lie beyond the file's end. Locks belong to this object: another one in the same process
/// is another holder. They end with it, also where its process is killed.
///
/// Failures are Guasto: 53 no such file, 75 denied, 57 the device fails, 61 no room left.
class FileCondiviso {
public:
    enum class Modo { Lettura, Scrittura, CreaSeManca };
    struct Intervallo {
        std::uint64_t inizio, lunghezza;
    };
    enum class Esito { Preso, Occupato, NonPossibile };

    FileCondiviso(const std::filesystem::path& file, Modo modo);
    ~FileCondiviso();
    FileCondiviso(FileCondiviso&& altro) noexcept;
    FileCondiviso& operator=(FileCondiviso&& altro) noexcept;

    /// False where the file's name stands for nothing any more, or for another file.
    [[nodiscard]] bool alSuoPosto() const;
    [[nodiscard]] std::uint64_t lunghezza() const;
    /// Returns how many bytes there were: fewer than asked for at the file's end.
    [[nodiscard]] std::size_t leggi(std::uint64_t posto, std::span<std::uint8_t> byte) const;
    void scrivi(std::uint64_t posto, std::span<const std::uint8_t> byte);
    /// Cuts off what lies beyond that length.
    void tronca(std::uint64_t lunghezza);
    /// Returns when all that was written lies on the disk.
    void consolida();

    /// Takes a lock if nobody stands in its way; never waits. NonPossibile: the file system knows no locks.
    [[nodiscard]] Esito blocca(Intervallo intervallo, bool esclusivo);
    /// Gives back what of the range this object holds.
    void sblocca(Intervallo intervallo);
    /// A lock of another holder that stands in the way of such a one of ours.
    [[nodiscard]] std::optional<Intervallo> bloccoAltrui(Intervallo intervallo, bool esclusivo) const;

private:
    std::filesystem::path file_;
    std::intptr_t maniglia_ = -1;
};

} // namespace lumigrafo
