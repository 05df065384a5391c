#pragma once

#include "links/collegamenti.h"
#include "platform/ascolto_tcp.h"
#include "platform/avvisi.h"
#include "platform/orologio.h"
#include "platform/sistema.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace lumigrafo {

/// Where a station listens to its cash desks; no setting changes it.
inline constexpr int kPortaCasse = 2222;

/// The server of the next-customer system. A desk connects, sends its letter, "A" to "E", and gets one text:
/// "NUMERO <n>", "KO" (no number), "RIPROVARE" (busy) or "Codice Cassa errato: <what came>". It may ask again
/// on the same connection, and ends it. Ten desks at a time; a further one gets nothing.
class ServerCasseTcp final : public ServerCasse {
public:
    /// Writes a line of the connections' log.
    using ScriviLog = std::function<void(const std::string& riga)>;

    /// All that is handed in outlives the server.
    ServerCasseTcp(ReteTcp& rete, CodaCasse& coda, const Orologio& orologio, Avvisi& avvisi, Sistema& sistema,
                   ScriviLog ScriviLogConnessioni, int porta = kPortaCasse);

    void Apri() override;
    void Chiudi() override;
    /// The port that it listens on.
    [[nodiscard]] int porta() const { return wsServer_[0] ? wsServer_[0]->LocalPort() : porta_; }

private:
    static constexpr std::size_t kPosti = 10;

    [[nodiscard]] EventiPresa eventi(std::size_t Index);
    void ConnectionRequest(std::size_t Index, std::int64_t requestID);
    void accogli(std::int64_t requestID);
    void DataArrival(std::size_t Index);
    void Close(std::size_t Index);
    /// The text of a request's answer, and whom it is for: the connection that asked.
    void rispondi(std::size_t Index, unsigned collegamento, const std::string& testo);

    ReteTcp& rete_;
    CodaCasse& coda_;
    const Orologio& orologio_;
    Avvisi& avvisi_;
    Sistema& sistema_;
    ScriviLog ScriviLogConnessioni_;
    int porta_;
    /// 0 listens, 1 to 10 are the slots; a slot is free while it is closed.
    std::array<std::unique_ptr<PresaServer>, kPosti + 1> wsServer_;
    /// How many connections a slot has had: an answer is for the one that asked.
    std::array<unsigned, kPosti + 1> collegamenti_{};
};

} // namespace lumigrafo
