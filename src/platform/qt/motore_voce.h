#pragma once

#include "platform/voce.h"

#include <QObject>
#include <QString>
#include <QTextToSpeech>

#include <functional>
#include <memory>
#include <optional>

namespace lumigrafo {

/// A text on its way to the engine.
struct TestoVoce {
    quint64 numero = 0;
    QString testo;
    int Rate = 0;     ///< -10 to 10
    int Volume = 100; ///< 0 to 100
};

/// Qt's speech engine on a thread of its own, since making it and each of its commands may block. Knows which
/// text is being spoken: Qt reports only states, and a second say() in a row cuts the first off or not, by
/// chance of time.
class MotoreVoce final : public QObject {
public:
    /// Both are called on the engine's thread. `finito`: the text of that number is over and none follows it.
    MotoreVoce(std::function<void(quint64 numero)> finito, std::function<void()> assente);
    ~MotoreVoce() override;

    void accendi(Voce::Scelta scelta);
    /// Cuts off what is being spoken.
    void di(TestoVoce testo);

private:
    enum class Fase {
        Ferma,
        Consegna, ///< being handed to the engine, which may refuse it
        Attesa,   ///< handed over; the engine hasn't begun
        Parla,
        Taglio, ///< the engine was told to stop, which it hasn't reported yet
    };

    bool crea();
    void scegliVoce();
    void consegna();
    bool accetta(const TestoVoce& testo);
    void imposta(double velocita, double volume);
    void statoCambiato(QTextToSpeech::State stato);
    void taglia();
    void concludi();

    std::function<void(quint64)> finito_;
    std::function<void()> assente_;
    Voce::Scelta scelta_;
    std::unique_ptr<QTextToSpeech> motore_;
    std::optional<double> velocita_, volume_; ///< as the engine was told last
    Fase fase_ = Fase::Ferma;
    quint64 inCorso_ = 0;
    std::optional<TestoVoce> seguente_; ///< waits for the one being cut off
};

} // namespace lumigrafo
