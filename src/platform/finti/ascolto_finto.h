#pragma once

#include "platform/ascolto_tcp.h"

#include <map>
#include <utility>
#include <vector>

namespace lumigrafo {

/// Sockets without a network: the test plays the other sides.
class ReteTcpFinta : public ReteTcp {
public:
    struct Presa : PresaServer {
        Presa(ReteTcpFinta& rete, EventiPresa e) : eventi(std::move(e)), rete_(rete) {}
        EventiPresa eventi;
        StatoPresa stato = StatoPresa::Chiusa;
        std::string indirizzo;
        std::string inArrivo;             ///< not fetched yet
        std::vector<std::string> inviati; ///< to every other side so far
        bool rotta = false;               ///< the next send finds the other side gone

        void LocalPort(int p) override { porta_ = p; }
        [[nodiscard]] int LocalPort() const override { return porta_; }
        void Listen() override {
            if (rete_.guastoListen != 0)
                throw Guasto(rete_.guastoListen);
            stato = StatoPresa::InAscolto;
        }
        void Accept(std::int64_t requestID) override {
            const auto richiesta = rete_.richieste_.find(requestID);
            if (rete_.guastoAccept || richiesta == rete_.richieste_.end() || stato != StatoPresa::Chiusa)
                throw Guasto(guasti::kStatoConnessione);
            indirizzo = richiesta->second;
            stato = StatoPresa::Connessa;
            rete_.richieste_.erase(richiesta);
        }
        void Close() override {
            stato = StatoPresa::Chiusa;
            inArrivo.clear();
        }
        std::string GetData() override { return std::exchange(inArrivo, {}); }
        void SendData(const std::string& dati) override {
            if (stato != StatoPresa::Connessa)
                throw Guasto(guasti::kStatoConnessione);
            if (std::exchange(rotta, false)) {
                eventi.Close();
                throw Guasto(guasti::kConnessioneCaduta);
            }
            inviati.push_back(dati);
        }
        [[nodiscard]] std::string RemoteHostIP() const override { return indirizzo; }
        [[nodiscard]] StatoPresa State() const override { return stato; }

        /// The other side sends.
        void arriva(const std::string& dati) {
            inArrivo += dati;
            eventi.DataArrival();
        }

    private:
        ReteTcpFinta& rete_;
        int porta_ = 0;
    };

    int guastoListen = 0;
    bool guastoAccept = false;
    std::vector<Presa*> prese; ///< in the order of their making

    std::unique_ptr<PresaServer> crea(EventiPresa eventi) override {
        auto presa = std::make_unique<Presa>(*this, std::move(eventi));
        prese.push_back(presa.get());
        return presa;
    }
    /// Somebody asks the first socket for a connection.
    void chiede(std::int64_t requestID, const std::string& indirizzo = "10.0.0.1") {
        richieste_[requestID] = prese.front()->indirizzo = indirizzo;
        prese.front()->eventi.ConnectionRequest(requestID);
    }

private:
    std::map<std::int64_t, std::string> richieste_;
};

} // namespace lumigrafo
