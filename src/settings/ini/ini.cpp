#include "settings/ini/ini.h"

#include "platform/file.h"
#include "settings/ini/cp1252.h"
#include "settings/ini/testo_ini.h"

namespace lumigrafo {

namespace {

constexpr std::size_t kLunghezzaMassima = 255;

std::filesystem::path percorso(const std::string& utf8) {
    return std::u8string(utf8.begin(), utf8.end());
}

/// The text of the file, empty where there is none; nothing where there is one that can't be read: to write
/// it anew would lose every key in it.
std::optional<std::string> testoDi(const std::filesystem::path& file) {
    if (auto testo = leggiFile(file))
        return testo;
    std::error_code ec;
    const auto stato = std::filesystem::status(file, ec);
    return stato.type() == std::filesystem::file_type::not_found ? std::optional(std::string())
                                                                 : std::nullopt;
}

} // namespace

std::string FileIni::LeggiIni(std::string_view sezione, std::string_view chiave,
                              const ValoreIni& predefinito) const {
    const auto testo = leggiFile(file_);
    const auto valore =
        testo ? valoreIni(*testo, aCp1252(trim(sezione)), aCp1252(trim(chiave))) : std::nullopt;
    // Cut first and trimmed then, so that a cut value has no blank at its end either.
    const std::string letto = valore ? trim(valore->substr(0, kLunghezzaMassima)) : std::string();
    // A default is the caller's own text, as a folder of any length and spelling is: it is given back whole.
    return letto.empty() ? trim(predefinito.testo()) : daCp1252(letto);
}

std::int32_t FileIni::ScriviIni(std::string_view sezione, std::string_view chiave,
                                const ValoreIni& valore) const {
    const std::string s = aCp1252(trim(sezione));
    const std::string c = aCp1252(trim(chiave));
    if (!nomiScrivibili(s, c))
        return 0;
    // Other processes write other keys of the same file: between our reading and our replacing none may come
    // in.
    const auto vero = fileVero(file_);
    const BloccoCartella blocco(vero.parent_path());
    const auto testo = testoDi(vero);
    if (!testo)
        return 0;
    const std::string nuovo = conValoreIni(*testo, s, c, aCp1252(trim(valore.testo())));
    return nuovo == *testo || sostituisciFile(vero, nuovo) ? 1 : 0;
}

std::string LeggiIni(std::string& file, std::string& sezione, std::string& chiave,
                     const ValoreIni& predefinito) {
    file = trim(file);
    sezione = trim(sezione);
    chiave = trim(chiave);
    return FileIni(percorso(file)).LeggiIni(sezione, chiave, predefinito);
}

std::int32_t ScriviIni(std::string& file, std::string& sezione, std::string& chiave, std::string& valore) {
    file = trim(file);
    sezione = trim(sezione);
    chiave = trim(chiave);
    valore = trim(valore);
    return FileIni(percorso(file)).ScriviIni(sezione, chiave, valore);
}

} // namespace lumigrafo
