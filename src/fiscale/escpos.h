#pragma once

#include "fiscale/impostazioni.h"
#include "fiscale/modulo.h"

#include <string>
#include <string_view>

/// The bytes of ESC/POS printers.
namespace lumigrafo::escpos {

/// A whole receipt: set-up, code page, lines, cut.
[[nodiscard]] std::string scontrino(const Modulo& modulo, const ImpostazioniFiscali& impostazioni);

/// In the printer's code page, one byte a character; what the page lacks becomes its nearest, or '?'.
[[nodiscard]] std::string codificato(std::string_view utf8, bool pagina1252);

/// Questions that the printer answers at once, whatever it is doing: DLE EOT 1, 2 and 4.
inline constexpr std::string_view kChiediStato[] = {"\x10\x04\x01", "\x10\x04\x02", "\x10\x04\x04"};
/// A question that it answers once all bytes before it are printed: GS r 1.
inline constexpr std::string_view kChiediFine = "\x1D\x72\x01";
/// Throws away what the printer holds and hasn't printed: DLE DC4 8.
inline constexpr std::string_view kScordaTutto{"\x10\x14\x08\x01\x03\x14\x01\x06\x02\x08", 10};

/// True for a byte that can be an answer to kChiediStato.
[[nodiscard]] bool risposta(char byte);
/// What keeps the printer from printing, in Italian; empty where nothing does. `quale`: the question's place
/// in kChiediStato.
[[nodiscard]] std::string impedimento(int quale, char byte);
/// True where the paper is about to end: the answer to the third question.
[[nodiscard]] bool cartaInEsaurimento(char byte);
/// True for a byte that can be the answer to kChiediFine.
[[nodiscard]] bool rispostaDiFine(char byte);
/// True where that answer says that there is no paper.
[[nodiscard]] bool fineSenzaCarta(char byte);

} // namespace lumigrafo::escpos
