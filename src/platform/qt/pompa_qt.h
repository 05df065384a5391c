#pragma once

#include "platform/pompa.h"

#include <QObject>
#include <QPointer>

#include <deque>
#include <memory>
#include <vector>

class QKeyEvent;

namespace lumigrafo {

/// Pending events of Qt's loop. Keys that a routine keeps back wait in here and are delivered in their order,
/// one by one, once control is back at a loop that takes keys: after the routine, in a nested pump that lets
/// all through, or in a modal window that a let-through event opened. Needs a QApplication; one object for
/// the program.
class PompaQt final : public QObject, public Pompa {
public:
    PompaQt();
    ~PompaQt() override;
    void cedi(std::string_view punto, Ammessi ammessi = Ammessi::Tutti) override;

    bool event(QEvent* evento) override;
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    struct Livello {
        Ammessi ammessi;
        int ciclo; ///< depth of Qt's loops at the call: a modal window inside is deeper, and takes keys
    };
    struct Tasto {
        QPointer<QObject> destinatario;
        std::unique_ptr<QKeyEvent> evento;
    };

    [[nodiscard]] bool trattiene() const;
    void chiediConsegna();
    bool consegnaSubito(QObject* oggetto, QEvent* evento);
    void consegna(const Tasto& tasto);

    std::vector<Livello> livelli_;
    std::deque<Tasto> trattenuti_;
    bool consegnaChiesta_ = false;
    const QEvent* inConsegna_ = nullptr;
    bool passaScorciatoia_ = false;
};

} // namespace lumigrafo
