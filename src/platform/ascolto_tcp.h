#pragma once

#include "platform/guasto.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace lumigrafo {

/// Failures of sockets, by the platform's usual numbers.
namespace guasti {
inline constexpr int kPortaNegata = 10013;       ///< the system denies the port
inline constexpr int kPortaInUso = 10048;        ///< another program listens there
inline constexpr int kIndirizzoAssente = 10049;  ///< this machine hasn't the address
inline constexpr int kRete = 10050;              ///< the network fails, for whatever other reason
inline constexpr int kConnessioneCaduta = 10054; ///< the other side vanished
inline constexpr int kRisorseEsaurite = 10055;   ///< no more sockets on this machine
inline constexpr int kStatoConnessione = 40006;  ///< the operation doesn't fit the socket's state
} // namespace guasti

/// What a socket is doing, by the platform's usual numbers.
enum class StatoPresa { Chiusa = 0, InAscolto = 2, Connessa = 7 };

/// What a socket reports, from the event loop. A report can come in the middle of an earlier one's routine,
/// when that lets events through.
struct EventiPresa {
    /// A listener: somebody asks for a connection. What isn't accepted before this returns stays unanswered.
    std::function<void(std::int64_t requestID)> ConnectionRequest;
    /// Data have come. They wait until they are fetched.
    std::function<void()> DataArrival;
    /// The other side has closed the connection, or it broke. The socket isn't free before its `Close`.
    std::function<void()> Close;
};

/// A TCP socket: a listener, or this side of one connection. Closed at first.
class PresaServer {
public:
    virtual ~PresaServer() = default;

    /// The port to listen on; 0: the system chooses one, which can be read once the socket listens.
    virtual void LocalPort(int porta) = 0;
    [[nodiscard]] virtual int LocalPort() const = 0;
    /// Listens. Throws Guasto with one of the numbers above.
    virtual void Listen() = 0;
    /// Takes a connection that a listener of the same network reported. Throws Guasto 40006 where the
    /// request is gone or this socket isn't closed.
    virtual void Accept(std::int64_t requestID) = 0;
    virtual void Close() = 0;
    /// All data that have come, byte for byte; empty where there are none.
    [[nodiscard]] virtual std::string GetData() = 0;
    /// Sends without waiting for the other side. Throws Guasto 40006 where the socket isn't connected, and
    /// 10054 where the connection proves broken while these bytes are sent; its Close is told by then.
    virtual void SendData(const std::string& dati) = 0;
    /// Dotted address of the other side; of a listener, that of the latest request. Empty without one.
    [[nodiscard]] virtual std::string RemoteHostIP() const = 0;
    [[nodiscard]] virtual StatoPresa State() const = 0;
};

/// Makes sockets. It outlives them.
class ReteTcp {
public:
    virtual ~ReteTcp() = default;
    [[nodiscard]] virtual std::unique_ptr<PresaServer> crea(EventiPresa eventi) = 0;
};

} // namespace lumigrafo
