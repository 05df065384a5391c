#pragma once

#include <string_view>

namespace lumigrafo::prova {

/// Plays any bytes as a script of what cash desks do to the server: connect, send, close, vanish, also in the
/// middle of another's request. Each arrival must get the one answer that it deserves, on the connection it
/// came from, and each number must go to one desk. Anything else throws std::logic_error.
///
/// A step is a letter and what belongs to it: 'c' connect; 's' slot, length, bytes: send; 'x' slot: close;
/// 'v' slot: vanish before the next answer; 'd' number of steps: those that follow happen inside the next
/// request.
void giroCasse(std::string_view passi);

} // namespace lumigrafo::prova
