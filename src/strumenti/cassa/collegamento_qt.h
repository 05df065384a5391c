#pragma once

#include "strumenti/cassa/collegamento.h"

#include <QTcpSocket>

namespace lumigrafo::cassa {

/// Over Qt's sockets; needs no event loop.
class CollegamentoQt final : public Collegamento {
public:
    explicit CollegamentoQt(int porta) : porta_(porta) {}
    void apri(const std::string& server, std::chrono::milliseconds limite) override;
    void manda(const std::string& testo) override;
    [[nodiscard]] std::string ricevi(std::chrono::milliseconds limite) override;

private:
    int porta_;
    QTcpSocket presa_;
};

} // namespace lumigrafo::cassa
