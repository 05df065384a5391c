#pragma once

#include <string_view>

/// What the fuzzers throw bytes at. Whatever isn't as told here throws std::logic_error.
namespace lumigrafo::prova {

/// Reads any text as JSON, with both types of numbers. What can be read must be written, read again and
/// written to the same text; what cannot must be refused with a failure of the parser's own.
void giroJson(std::string_view testo);

/// Plays any bytes as a script of what cash desks do to the server: connect, send, close, vanish, also in the
/// middle of another's request. Each arrival must get the one answer that it deserves, on the connection it
/// came from, and each number must go to one desk.
///
/// A step is a letter and what belongs to it: 'c' connect; 's' slot, length, bytes: send; 'x' slot: close;
/// 'v' slot: vanish before the next answer; 'd' number of steps: those that follow happen inside the next
/// request.
void giroCasse(std::string_view passi);

/// What became of a damaged archive.
enum class EsitoAccess {
    Rifiutato,  ///< not opened at all
    Sano,       ///< no damage that matters
    Riparato,   ///< `ripara` left nothing that disagrees
    DaRiparare, ///< it can be opened, and `ripara` refused it or couldn't put everything right
};

/// Takes any bytes as an archive of Access: reads, examines and mends it, and works on it as the program
/// does. The bytes are those of a file, or, where they don't begin as one, damage done to a sound archive:
///     b PP OO M     one byte is XORed with M
///     w PP OO N ... N bytes are overwritten
///     c PP QQ       page Q is copied over page P
///     r PP S        the page becomes rubbish
///     t PP OO       the file is cut short
/// P, Q are pages and O offsets in them, two bytes each, low byte first; too large ones begin anew. Nothing
/// may fail but with a Guasto, and an archive in which `verifica` finds nothing must stay so when it is
/// worked on.
EsitoAccess giroAccess(std::string_view dati);

} // namespace lumigrafo::prova
