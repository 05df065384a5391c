#pragma once

#include "strumenti/schermo/arrivo.h"
#include "strumenti/schermo/tabellone.h"

#include <QHostAddress>
#include <QTcpServer>

#include <functional>
#include <optional>

class QTcpSocket;

namespace lumigrafo::schermo {

/// Listens for documents, from any number of senders one after the other or at one time. A sender whose
/// document is whole and sound gets an answer; any other is cut off without one, at the latest after
/// kAttesaMs.
class Ricevitore {
public:
    static constexpr int kAttesaMs = 10'000;
    /// Senders at one time; more of them are cut off at once.
    static constexpr int kMassimi = 16;

    /// `arrivato` is called with each sound document, once its sender has its answer.
    explicit Ricevitore(std::function<void(const Tabellone&)> arrivato);

    /// Begins to listen. Nothing where it could, else why not, in Italian.
    [[nodiscard]] std::optional<QString> ascolta(const QHostAddress& indirizzo, quint16 porta);

private:
    void accogli(QTcpSocket& mittente);
    void leggi(QTcpSocket& mittente, Arrivo& arrivo);
    void concludi(QTcpSocket& mittente, const std::string& documento);

    std::function<void(const Tabellone&)> arrivato_;
    int presenti_ = 0;
    QTcpServer server_;
};

} // namespace lumigrafo::schermo
