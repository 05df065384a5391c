#pragma once

#include "platform/cliente_tcp.h"

namespace lumigrafo {

/// Connections of the system. A name that the network doesn't answer for is looked up on a thread of its own,
/// which the caller leaves behind at its limit.
class ClienteTcpLinux final : public ClienteTcp {
public:
    [[nodiscard]] std::unique_ptr<PresaTcp> crea() override;
};

} // namespace lumigrafo
