#pragma once

#include <string>
#include <string_view>

/// Code page 1252, the text form of the settings files on disk.
namespace lumigrafo {

/// To UTF-8. Every byte has a character: the five that the code page leaves open stand for the control
/// characters of the same number, so that they come back as they were.
[[nodiscard]] std::string daCp1252(std::string_view byte);

/// From UTF-8, one byte a character; what the code page lacks, and what is no UTF-8, becomes '?'.
[[nodiscard]] std::string aCp1252(std::string_view utf8);

} // namespace lumigrafo
