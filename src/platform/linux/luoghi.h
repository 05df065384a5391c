#pragma once

#include "platform/luoghi.h"

#include <string_view>

namespace lumigrafo {

/// Shares and disks out of the kernel's table of mounted file systems, the shares first.
[[nodiscard]] std::vector<Luogo> luoghiMontati(std::string_view tabella);

/// The places of this machine: what is mounted, the shares that the desktop opened for the user, the user's
/// own folder and the whole computer.
class LuoghiLinux final : public Luoghi {
public:
    [[nodiscard]] std::vector<Luogo> elenco() const override;
};

} // namespace lumigrafo
