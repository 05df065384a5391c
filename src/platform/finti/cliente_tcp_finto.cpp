#include "platform/finti/cliente_tcp_finto.h"

namespace lumigrafo {

class ClienteTcpFinto::Presa final : public PresaTcp {
public:
    explicit Presa(ClienteTcpFinto& rete) : rete_(rete) {}

    bool connetti(const std::string& nome, std::uint16_t porta, std::chrono::milliseconds limite) override {
        annota("connetti " + nome + ":" + std::to_string(porta) + " " + std::to_string(limite.count()));
        const auto trovato = rete_.host.find(nome);
        if (trovato != rete_.host.end() && trovato->second.accetta)
            host_ = &trovato->second;
        return host_ != nullptr;
    }
    void sonde(bool attive) override { annota(attive ? "sonde 1" : "sonde 0"); }
    void limiteInattivita(std::chrono::milliseconds limite) override {
        annota("inattività " + std::to_string(limite.count()));
    }
    bool invia(std::string_view testo) override {
        annota("invia");
        if (host_ && host_->prende)
            host_->ricevuto = testo;
        return host_ && host_->prende;
    }
    std::string ricevi() override {
        annota("ricevi");
        return host_ ? host_->risposta : "";
    }
    void chiudi(std::chrono::milliseconds limite) override {
        annota("chiudi " + std::to_string(limite.count()));
        host_ = nullptr;
    }

private:
    void annota(std::string riga) { rete_.diario_.push_back(std::move(riga)); }

    ClienteTcpFinto& rete_;
    Host* host_ = nullptr;
};

std::unique_ptr<PresaTcp> ClienteTcpFinto::crea() {
    return std::make_unique<Presa>(*this);
}

} // namespace lumigrafo
