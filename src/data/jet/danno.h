#pragma once

#include "platform/guasto.h"

#include <cstdint>
#include <string>

namespace lumigrafo::jet {

/// The failure for bytes that can't be what they should be. Every reader of this folder ends with it rather
/// than trust a number that it found in the file. Guasto 3049.
[[nodiscard]] Guasto danno(std::uint32_t pagina, const std::string& cosa);
/// The same failure where mending was tried: the advice to try it becomes another one.
[[nodiscard]] Guasto nonRiparabile(const Guasto& danno);

/// The failure for a file that is whole but that this engine must not touch. Guasto 3343.
[[nodiscard]] Guasto nonLetto(const std::string& perche);

} // namespace lumigrafo::jet
