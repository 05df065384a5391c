#pragma once

#include "platform/voce.h"

#include <QObject>
#include <QThread>

namespace lumigrafo {

class MotoreVoce;

/// The voice on Qt's speech engine. The engine takes about two seconds to start, and lives on a thread of its
/// own: the thread that uses the voice never waits for it. Needs the event loop of a QCoreApplication.
class VoceQt final : public Voce {
public:
    VoceQt();
    /// Waits for the engine, if that is just starting.
    ~VoceQt() override;
    VoceQt(const VoceQt&) = delete;
    VoceQt& operator=(const VoceQt&) = delete;

    void accendi(EventiVoce eventi, Scelta scelta) override;
    void Speak(const std::string& testo, int Rate, int Volume) override;

private:
    EventiVoce eventi_;
    QObject qui_; ///< receives the engine's reports on the thread of the voice's user
    QThread filo_;
    MotoreVoce* motore_; ///< on its thread, and deleted with it
    quint64 ultimo_ = 0; ///< number of the text taken last: the end of an earlier one is no news
};

} // namespace lumigrafo
