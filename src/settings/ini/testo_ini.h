#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The text of a settings file: sections in square brackets, lines of key, equals sign and value. All texts
/// are bytes of the file's code page.
///
/// Names are found without regard to case, and the first of a name wins. Blanks around a name or a value,
/// comment lines (';'), lines that are neither a section nor a key, and a byte order mark at the head are
/// passed over.
namespace lumigrafo {

/// The value of a key without the quotes around it; nothing where the key is missing.
[[nodiscard]] std::optional<std::string> valoreIni(std::string_view testo, std::string_view sezione,
                                                   std::string_view chiave);

/// The text with the key set, in place of its old value, or behind the last key of its section, or in a new
/// section at the end. All else stays byte for byte. New lines end as their neighbours do, with CR LF in an
/// empty text.
[[nodiscard]] std::string conValoreIni(std::string_view testo, std::string_view sezione,
                                       std::string_view chiave, std::string_view valore);

/// Whether a line of the file can hold these names so that they are found again.
[[nodiscard]] bool nomiScrivibili(std::string_view sezione, std::string_view chiave);

} // namespace lumigrafo
