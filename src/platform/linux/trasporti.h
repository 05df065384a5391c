#pragma once

#include "platform/trasporto.h"

namespace lumigrafo {

/// Sockets and device files of the system.
class TrasportiLinux final : public Trasporti {
public:
    [[nodiscard]] std::unique_ptr<Trasporto> tcp(const std::string& host, std::uint16_t porta,
                                                 Trasporto::Limite limite) override;
    [[nodiscard]] std::unique_ptr<Trasporto> dispositivo(const std::string& file) override;
};

} // namespace lumigrafo
