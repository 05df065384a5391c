#include "platform/qt/ascolto_tcp_qt.h"

#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>

#include <algorithm>
#include <chrono>
#include <utility>

namespace lumigrafo {

namespace {

using namespace std::chrono_literals;

/// The one place where Qt's errors get their numbers.
Guasto guastoDi(QAbstractSocket::SocketError errore, const QString& descrizione) {
    const auto numero = [errore] {
        switch (errore) {
        case QAbstractSocket::AddressInUseError:
            return guasti::kPortaInUso;
        case QAbstractSocket::SocketAccessError:
            return guasti::kPortaNegata;
        case QAbstractSocket::SocketAddressNotAvailableError:
            return guasti::kIndirizzoAssente;
        case QAbstractSocket::SocketResourceError:
            return guasti::kRisorseEsaurite;
        default:
            return guasti::kRete;
        }
    };
    return Guasto(numero(), descrizione.toStdString());
}

Guasto statoErrato() {
    return Guasto(guasti::kStatoConnessione,
                  "Protocollo o stato della connessione errato per l'operazione richiesta");
}

/// An IPv4 address that came in through an IPv6 socket shows as what it is.
std::string indirizzoDi(const QTcpSocket& presa) {
    bool v4 = false;
    const quint32 indirizzo = presa.peerAddress().toIPv4Address(&v4);
    return (v4 ? QHostAddress(indirizzo) : presa.peerAddress()).toString().toStdString();
}

} // namespace

/// Qt takes requests from the system on its own; this one lets it take a single one ahead, and bounds what
/// that may send before anybody looks at it.
class ReteTcpQt::Ascoltatore final : public QTcpServer {
public:
    Ascoltatore() { setMaxPendingConnections(1); }

protected:
    void incomingConnection(qintptr descrittore) override {
        auto* presa = new QTcpSocket(this);
        presa->setReadBufferSize(kByteInEntrata);
        if (presa->setSocketDescriptor(descrittore))
            addPendingConnection(presa);
        else
            delete presa;
    }
};

class ReteTcpQt::Presa final : public PresaServer {
public:
    Presa(ReteTcpQt& rete, EventiPresa eventi) : rete_(rete), eventi_(std::move(eventi)) {
        rete_.prese_.append(this);
    }
    ~Presa() override {
        lascia();
        rete_.prese_.removeOne(this);
    }

    void LocalPort(int porta) override { porta_ = porta; }
    [[nodiscard]] int LocalPort() const override { return ascolto_ ? ascolto_->serverPort() : porta_; }

    void Listen() override {
        if (State() != StatoPresa::Chiusa)
            throw statoErrato();
        auto ascolto = std::make_unique<Ascoltatore>();
        if (!ascolto->listen(rete_.interfaccia_, static_cast<quint16>(porta_)))
            throw guastoDi(ascolto->serverError(), ascolto->errorString());
        QObject::connect(ascolto.get(), &QTcpServer::newConnection, ascolto.get(),
                         [this] { prendiRichieste(); });
        // Qt takes no more requests after a failure: the machine may have been out of sockets for a moment.
        QObject::connect(ascolto.get(), &QTcpServer::acceptError, ascolto.get(),
                         [a = ascolto.get()] { QTimer::singleShot(1s, a, [a] { a->resumeAccepting(); }); });
        ascolto_ = std::move(ascolto);
    }

    void Accept(std::int64_t requestID) override {
        QTcpSocket* richiesta = rete_.richiesta_;
        if (State() != StatoPresa::Chiusa || !richiesta || richiesta->socketDescriptor() != requestID)
            throw statoErrato();
        rete_.richiesta_ = nullptr;
        richiesta->setParent(nullptr);
        richiesta->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        presa_ = richiesta;
        indirizzo_ = indirizzoDi(*presa_);
        // This signal, other than its brother, comes also in the middle of its own routine.
        QObject::connect(presa_, &QIODevice::channelReadyRead, presa_, [this] { datiArrivati(); });
        QObject::connect(presa_, &QIODevice::bytesWritten, presa_, [this] {
            if (std::exchange(trattenuti_, false))
                datiArrivati();
        });
        QObject::connect(presa_, &QAbstractSocket::disconnected, presa_, [this] { eventi_.Close(); });
    }

    void Close() override {
        lascia();
        rete_.postoLiberato();
    }

    std::string GetData() override { return presa_ ? presa_->readAll().toStdString() : std::string(); }

    void SendData(const std::string& dati) override {
        if (!presa_ || presa_->state() != QAbstractSocket::ConnectedState)
            throw statoErrato();
        const QPointer<QTcpSocket> inUso = presa_;
        inUso->write(dati.data(), static_cast<qint64>(dati.size()));
        if (inUso)
            inUso->flush(); // to the system now; a broken connection shows here
        if (!inUso || inUso->state() != QAbstractSocket::ConnectedState)
            throw Guasto(guasti::kConnessioneCaduta, "Connessione interrotta dall'altra parte");
    }

    [[nodiscard]] std::string RemoteHostIP() const override { return indirizzo_; }

    [[nodiscard]] StatoPresa State() const override {
        return ascolto_ ? StatoPresa::InAscolto : presa_ ? StatoPresa::Connessa : StatoPresa::Chiusa;
    }

    /// Reads nothing more meanwhile, not even that the other side has finished: that comes behind its data.
    void trattieni() { presa_->setReadBufferSize(1); }

    void riporta() {
        presa_->setReadBufferSize(kByteInEntrata);
        eventi_.DataArrival();
    }

    void prendiRichieste() {
        while (ascolto_ && rete_.haPosto() && ascolto_->hasPendingConnections())
            chiedi(ascolto_->nextPendingConnection());
    }

private:
    void chiedi(QTcpSocket* richiesta) {
        if (richiesta->state() != QAbstractSocket::ConnectedState) { // gone while it waited its turn
            richiesta->deleteLater();
            return;
        }
        indirizzo_ = indirizzoDi(*richiesta);
        rete_.richiesta_ = richiesta;
        eventi_.ConnectionRequest(richiesta->socketDescriptor());
        if (std::exchange(rete_.richiesta_, nullptr))
            rete_.sospendi(richiesta);
        else if (richiesta->bytesAvailable() > 0) // came before anybody listened to the socket's signals
            QMetaObject::invokeMethod(
                richiesta, [richiesta] { Q_EMIT richiesta->channelReadyRead(0); }, Qt::QueuedConnection);
    }

    void datiArrivati() {
        if (presa_->bytesToWrite() > kByteInUscita)
            trattenuti_ = true; // the other side doesn't read: nothing more is taken from it meanwhile
        else if (presa_->bytesAvailable() > 0)
            rete_.datiArrivati(*this);
    }

    void lascia() {
        trattenuti_ = false;
        rete_.inCoda_.removeOne(this);
        ascolto_.reset();
        if (QTcpSocket* p = std::exchange(presa_, nullptr)) {
            p->disconnect();
            p->abort();
            p->deleteLater(); // its own signal may be running
        }
    }

    ReteTcpQt& rete_;
    EventiPresa eventi_;
    int porta_ = 0;
    std::string indirizzo_;
    std::unique_ptr<Ascoltatore> ascolto_;
    QTcpSocket* presa_ = nullptr;
    bool trattenuti_ = false; ///< data have come that haven't been reported
};

ReteTcpQt::ReteTcpQt(QHostAddress interfaccia) : interfaccia_(std::move(interfaccia)) {
    turno_.setSingleShot(true);
    QObject::connect(&turno_, &QTimer::timeout, &qui_, [this] {
        if (!inCoda_.isEmpty())
            consegna(*inCoda_.takeFirst());
    });
}

ReteTcpQt::~ReteTcpQt() {
    for (QTcpSocket* p : std::as_const(sospese_)) {
        p->disconnect();
        delete p;
    }
}

std::unique_ptr<PresaServer> ReteTcpQt::crea(EventiPresa eventi) {
    return std::make_unique<Presa>(*this, std::move(eventi));
}

bool ReteTcpQt::haPosto() const {
    return sospese_.size() < kInSospeso || std::any_of(prese_.begin(), prese_.end(), [](const Presa* p) {
               return p->State() == StatoPresa::Chiusa;
           });
}

void ReteTcpQt::postoLiberato() {
    QMetaObject::invokeMethod(
        &qui_,
        [this] {
            for (Presa* p : QList(prese_))
                p->prendiRichieste();
        },
        Qt::QueuedConnection);
}

void ReteTcpQt::datiArrivati(Presa& presa) {
    // In the middle of an earlier report nobody waits for a turn: the routine let this one through.
    if (inCorso_ > 0 || !turno_.isActive()) {
        consegna(presa);
    } else if (!inCoda_.contains(&presa)) {
        inCoda_.append(&presa);
        presa.trattieni();
    }
}

void ReteTcpQt::consegna(Presa& presa) {
    struct InCorso {
        explicit InCorso(int& n) : n_(n) { ++n_; }
        ~InCorso() { --n_; }
        InCorso(const InCorso&) = delete;
        InCorso& operator=(const InCorso&) = delete;
        int& n_;
    } inCorso(inCorso_);
    turno_.start(0);
    inCoda_.removeOne(&presa);
    presa.riporta();
}

void ReteTcpQt::sospendi(QTcpSocket* richiesta) {
    richiesta->setParent(nullptr);
    sospese_.append(richiesta);
    QObject::connect(richiesta, &QIODevice::readyRead, &qui_, [richiesta] { richiesta->readAll(); });
    QObject::connect(richiesta, &QAbstractSocket::disconnected, &qui_, [this, richiesta] {
        sospese_.removeOne(richiesta);
        richiesta->deleteLater();
        postoLiberato();
    });
    richiesta->readAll();
}

} // namespace lumigrafo
