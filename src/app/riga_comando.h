#pragma once

#include "platform/ambiente.h"

#include <optional>
#include <string>

namespace lumigrafo {

/// The answer to `--help` and `--version`, which print and leave; nothing for any other command line.
[[nodiscard]] std::optional<std::string> rispostaImmediata(int argc, char** argv);

/// Program folder (the executable's own, or the one that LUMIGRAFO_HOME names), executable and argument
/// string.
[[nodiscard]] Ambiente leggiAmbiente(int argc, char** argv, const std::filesystem::path& eseguibile);

} // namespace lumigrafo
