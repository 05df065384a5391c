#include "strumenti/cassa/collegamento_qt.h"

#include "platform/ascolto_tcp.h"

namespace lumigrafo::cassa {

namespace {

Guasto caduto() {
    return Guasto(guasti::kConnessioneCaduta, "Il collegamento con la stazione è caduto.");
}

} // namespace

void CollegamentoQt::apri(const std::string& server, std::chrono::milliseconds limite) {
    presa_.abort();
    presa_.connectToHost(QString::fromStdString(server), static_cast<quint16>(porta_));
    if (!presa_.waitForConnected(static_cast<int>(limite.count())))
        throw Guasto(guasti::kRete,
                     "Nessuna stazione risponde su " + server + ", porta " + std::to_string(porta_) + ".");
}

void CollegamentoQt::manda(const std::string& testo) {
    presa_.write(testo.data(), static_cast<qint64>(testo.size()));
    if (presa_.state() != QAbstractSocket::ConnectedState || !presa_.flush())
        throw caduto();
}

std::string CollegamentoQt::ricevi(std::chrono::milliseconds limite) {
    if (presa_.bytesAvailable() == 0 && !presa_.waitForReadyRead(static_cast<int>(limite.count())) &&
        presa_.state() != QAbstractSocket::ConnectedState)
        throw caduto();
    return presa_.readAll().toStdString();
}

} // namespace lumigrafo::cassa
