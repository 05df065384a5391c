#pragma once

#include "platform/ascolto_tcp.h"

#include <QHostAddress>
#include <QObject>
#include <QTimer>

class QTcpSocket;

namespace lumigrafo {

/// Sockets on Qt's network. What a station holds is bounded, whatever the other sides do:
/// - at most kByteInEntrata of what came wait to be fetched, for each socket;
/// - while kByteInUscita wait for an other side that doesn't read, nothing more is taken from it;
/// - requests that nobody accepted stay open and get nothing: kInSospeso of them are held, and those behind
///   them wait with the system until there is room again.
/// When several sockets have data at once, one is reported in each turn of the event loop: the windows are
/// served in between. Needs the event loop of a QCoreApplication.
class ReteTcpQt final : public ReteTcp {
public:
    static constexpr qint64 kByteInEntrata = 64 * 1024;
    static constexpr qint64 kByteInUscita = 256 * 1024;
    static constexpr qsizetype kInSospeso = 256;

    /// `interfaccia`: where listeners listen; all of the machine's by default.
    explicit ReteTcpQt(QHostAddress interfaccia = QHostAddress(QHostAddress::Any));
    ~ReteTcpQt() override;
    ReteTcpQt(const ReteTcpQt&) = delete;
    ReteTcpQt& operator=(const ReteTcpQt&) = delete;

    [[nodiscard]] std::unique_ptr<PresaServer> crea(EventiPresa eventi) override;

private:
    class Ascoltatore;
    class Presa;

    /// Something changed: listeners look again whether they may take a request.
    void postoLiberato();
    [[nodiscard]] bool haPosto() const;
    void sospendi(QTcpSocket* richiesta);
    void datiArrivati(Presa& presa);
    void consegna(Presa& presa);

    QHostAddress interfaccia_;
    QObject qui_; ///< receives signals for this object
    QList<Presa*> prese_;
    QList<QTcpSocket*> sospese_;
    QList<Presa*> inCoda_;            ///< have data, for the next turns
    QTimer turno_;                    ///< runs from a report to the loop's next turn
    int inCorso_ = 0;                 ///< reports being worked on
    QTcpSocket* richiesta_ = nullptr; ///< being reported; nobody has taken it yet
};

} // namespace lumigrafo
