#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <chrono>

namespace lumigrafo::prova {

/// Runs the event loop until the condition holds; false if it doesn't within `limite`.
template <typename Condizione>
bool attendi(Condizione vale, std::chrono::milliseconds limite) {
    QElapsedTimer tempo;
    tempo.start();
    QTimer sveglia; // the condition is looked at again even if nothing happens
    sveglia.start(10);
    while (!vale()) {
        if (tempo.elapsed() > limite.count())
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

} // namespace lumigrafo::prova
