#pragma once

#include "platform/conversioni.h"

#include <concepts>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

/// The settings store: INI text files of sections and keys. Nothing is cached: each read goes to the file and
/// each key is written by a call of its own. Nothing is reported either: a file that can't be read gives the
/// defaults.
namespace lumigrafo {

/// A value or a default as its text: a number stands for its decimal text, a truth value for its word.
class ValoreIni {
public:
    ValoreIni() = default;
    ValoreIni(std::string testo) : testo_(std::move(testo)) {}
    ValoreIni(std::string_view testo) : testo_(testo) {}
    ValoreIni(const char* testo) : testo_(testo) {}
    ValoreIni(float valore) : testo_(aTesto(valore, separatoreDecimale())) {}
    template <std::same_as<bool> T>
    ValoreIni(T valore) : testo_(aTesto(valore)) {}
    template <std::integral T>
    requires(!std::same_as<T, bool>) ValoreIni(T valore) : testo_(std::to_string(valore)) {}
    [[nodiscard]] const std::string& testo() const { return testo_; }

private:
    std::string testo_;
};

/// Reads a key; the path is that of the file itself. Blanks at both ends of the first three arguments are
/// taken off in the caller's strings. Returns at most 255 characters (bytes of code page 1252), without
/// blanks at the ends; a key that is missing, empty or blank gives the default, trimmed. UTF-8.
[[nodiscard]] std::string LeggiIni(std::string& file, std::string& sezione, std::string& chiave,
                                   const ValoreIni& predefinito = {});

/// Writes a key, making the file and the section as needed and keeping all else in the file as it is. Blanks
/// at both ends of all four strings are taken off in the caller's strings. Characters that code page 1252
/// lacks become
/// '?'. Returns nonzero if it was written.
std::int32_t ScriviIni(std::string& file, std::string& sezione, std::string& chiave, std::string& valore);

/// One settings file, for callers that name its keys by literals.
class FileIni {
public:
    explicit FileIni(std::filesystem::path file) : file_(std::move(file)) {}
    [[nodiscard]] const std::filesystem::path& file() const { return file_; }
    [[nodiscard]] std::string LeggiIni(std::string_view sezione, std::string_view chiave,
                                       const ValoreIni& predefinito = {}) const;
    std::int32_t ScriviIni(std::string_view sezione, std::string_view chiave, const ValoreIni& valore) const;

private:
    std::filesystem::path file_;
};

/// Files and sections, spelled once.
inline constexpr const char* kFileImpostazioni = "Lumigrafo.ini";
inline constexpr const char* kFileVideata = "VideataLumigrafo.ini";
inline constexpr const char* kFileUltimiChiamati = "UltimiChiamati.ini";
inline constexpr const char* kSezioneImpostazioni = "Impostazioni";
inline constexpr const char* kSezioneForm = "FormLumigrafo";
inline constexpr const char* kSezioneAndroid = "Android";
inline constexpr const char* kSezioneUltimi = "Impo";
inline constexpr const char* kFileMessaggi = "Messaggi.ini";

/// The key of a called number: quadrant and age, 0 the newest.
[[nodiscard]] inline std::string chiaveUltimo(int quadrante, int eta) {
    return "Ultimo_" + std::to_string(quadrante) + "_" + std::to_string(eta);
}

} // namespace lumigrafo
