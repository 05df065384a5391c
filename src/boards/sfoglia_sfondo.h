#pragma once

#include "platform/ambiente.h"
#include "platform/scelta_file.h"

#include <string>

namespace lumigrafo {

/// Asks for a background picture and copies it into the program folder under its own name, over a file of
/// that name; characters that the settings can't keep become "_". Returns the copy's path, UTF-8; empty where
/// nothing was chosen. Throws Guasto 53 where the file can't be read, 75 where the copy can't be written.
[[nodiscard]] std::string SfogliaSfondo(SceltaFile& sceltaFile, const Ambiente& ambiente);

} // namespace lumigrafo
