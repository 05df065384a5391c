#pragma once

#include <string>
#include <string_view>

namespace lumigrafo::prova {

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
/// worked on; else std::logic_error is thrown.
EsitoAccess giroAccess(std::string_view dati);

} // namespace lumigrafo::prova
