#pragma once

#include <string_view>

namespace lumigrafo::prova {

/// Reads any text as JSON, with both types of numbers. What can be read must be written, read again and
/// written to the same text; what cannot must be refused with a failure of the parser's own. Anything else
/// throws std::logic_error.
void giroJson(std::string_view testo);

} // namespace lumigrafo::prova
