#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

/// The few file operations that the standard library can't promise.
namespace lumigrafo {

/// The whole file, or nothing where it can't be read.
[[nodiscard]] std::optional<std::string> leggiFile(const std::filesystem::path& file);

/// The file that bears the name in the end: symbolic links are followed, also to a file that doesn't exist
/// yet.
[[nodiscard]] std::filesystem::path fileVero(const std::filesystem::path& file);

/// Puts a new content in the place of the old one: whoever reads meanwhile, and whoever looks after a crash,
/// finds one of the two whole. Keeps the file's owner and permissions and follows a symbolic link. False
/// where it failed (a file or folder that may not be written, a full disk); then the old file stands
/// untouched and no temporary file is left. Several processes may replace one file at the same time: the last
/// one's content stays. Whoever reads, changes and writes back holds a BloccoCartella all the while.
[[nodiscard]] bool sostituisciFile(const std::filesystem::path& file, std::string_view contenuto);

/// Holds a folder's write lock among all processes of this machine while it lives; waits for it. It dies with
/// its process and leaves no file behind. Where the folder can't be locked (it is missing, or its file system
/// knows no such locks), `preso()` is false. It doesn't nest: a second one on the same folder waits for the
/// first, in the same thread too, and so for ever.
class BloccoCartella {
public:
    explicit BloccoCartella(const std::filesystem::path& cartella);
    ~BloccoCartella();
    BloccoCartella(const BloccoCartella&) = delete;
    BloccoCartella& operator=(const BloccoCartella&) = delete;
    [[nodiscard]] bool preso() const { return maniglia_ != -1; }

private:
    std::intptr_t maniglia_ = -1;
};

/// A file held open for writing with all other writers denied, in this process or any other. The hold ends
/// with the object or with the process.
class FileEsclusivo {
public:
    /// Creates the file, or empties it. Throws Guasto 70 where another holder has it: the one failure that
    /// goes away by waiting. 75 where the system denies it, 76 where its folder is missing, 57 where the
    /// device fails.
    explicit FileEsclusivo(const std::filesystem::path& file);
    ~FileEsclusivo();
    FileEsclusivo(const FileEsclusivo&) = delete;
    FileEsclusivo& operator=(const FileEsclusivo&) = delete;

private:
    std::intptr_t maniglia_ = -1;
};

/// Deletes a file unless somebody holds it as FileEsclusivo. Throws Guasto 53 where there is none, 70 where
/// it is held, 75 where the system denies it.
void eliminaSeLibero(const std::filesystem::path& file);

} // namespace lumigrafo
