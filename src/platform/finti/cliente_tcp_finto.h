#pragma once

#include "platform/cliente_tcp.h"
#include "platform/finti/finti.h"

#include <map>
#include <string>

namespace lumigrafo {

/// A network on which each host behaves as the test says; what is done with the connections goes into the
/// diary.
class ClienteTcpFinto : public ClienteTcp {
public:
    explicit ClienteTcpFinto(Diario& diario) : diario_(diario) {}

    struct Host {
        bool accetta = true;
        std::string risposta = "OK"; ///< empty: none comes in time
        bool prende = true;          ///< false: a sending fails
        std::string ricevuto{};      ///< the last text that was sent to it
    };
    std::map<std::string, Host> host; ///< others refuse

    [[nodiscard]] std::unique_ptr<PresaTcp> crea() override;

private:
    class Presa;
    Diario& diario_;
};

} // namespace lumigrafo
