#include "strumenti/schermo/qt/ricevitore.h"

#include "platform/guasto.h"

#include <QTcpSocket>
#include <QTimer>

#include <memory>
#include <utility>

namespace lumigrafo::schermo {

namespace {

constexpr const char* kRisposta = "OK";
/// What the system may hold for us of one sender.
constexpr qint64 kMassimoInAttesa = 64 * 1024;

QString spiegazione(const QTcpServer& server) {
    switch (server.serverError()) {
    case QAbstractSocket::AddressInUseError:
        return QStringLiteral("la porta è già in uso");
    case QAbstractSocket::SocketAccessError:
        return QStringLiteral("permesso negato");
    case QAbstractSocket::SocketAddressNotAvailableError:
        return QStringLiteral("l'indirizzo non è di questa macchina");
    default:
        return server.errorString();
    }
}

} // namespace

Ricevitore::Ricevitore(std::function<void(const Tabellone&)> arrivato) : arrivato_(std::move(arrivato)) {
    QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] {
        while (QTcpSocket* mittente = server_.nextPendingConnection())
            accogli(*mittente);
    });
}

std::optional<QString> Ricevitore::ascolta(const QHostAddress& indirizzo, quint16 porta) {
    if (server_.listen(indirizzo, porta))
        return std::nullopt;
    return spiegazione(server_);
}

void Ricevitore::accogli(QTcpSocket& mittente) {
    QObject::connect(&mittente, &QTcpSocket::disconnected, &mittente, &QObject::deleteLater);
    if (presenti_ >= kMassimi) {
        mittente.abort();
        return;
    }
    ++presenti_;
    QObject::connect(&mittente, &QTcpSocket::disconnected, &server_, [this] { --presenti_; });
    mittente.setReadBufferSize(kMassimoInAttesa);
    QTimer::singleShot(kAttesaMs, &mittente, &QTcpSocket::abort);
    const auto arrivo = std::make_shared<Arrivo>();
    QObject::connect(&mittente, &QTcpSocket::readyRead, &mittente,
                     [this, &mittente, arrivo] { leggi(mittente, *arrivo); });
}

void Ricevitore::leggi(QTcpSocket& mittente, Arrivo& arrivo) {
    if (mittente.state() != QAbstractSocket::ConnectedState)
        return; // it has its answer already
    const QByteArray pezzo = mittente.readAll();
    switch (arrivo.prendi({pezzo.data(), static_cast<std::size_t>(pezzo.size())})) {
    case Arrivo::Stato::InCorso:
        return;
    case Arrivo::Stato::Rifiutato:
        mittente.abort();
        return;
    case Arrivo::Stato::Intero:
        concludi(mittente, arrivo.testo());
    }
}

void Ricevitore::concludi(QTcpSocket& mittente, const std::string& documento) {
    Tabellone tabellone;
    if (!ignorandoGuasti([&] { tabellone = leggiTabellone(documento); })) {
        mittente.abort();
        return;
    }
    mittente.write(kRisposta);
    mittente.flush();
    mittente.disconnectFromHost();
    arrivato_(tabellone);
}

} // namespace lumigrafo::schermo
