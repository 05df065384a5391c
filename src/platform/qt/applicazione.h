#pragma once

#include "platform/avvisi.h"
#include "platform/guasto.h"
#include "platform/qt/italiano.h"
#include "platform/sistema.h"

#include <QApplication>

#include <functional>

namespace lumigrafo {

/// Qt's application, with the program's look and language and the one place where a failure that nobody
/// caught ends: the platform's error box, and then the process with code 1. It catches in `notify`, not
/// around the loop, because there a failure under any modal window passes too, and must not run through Qt's
/// own frames.
class Applicazione final : public QApplication {
public:
    /// `argc` and `argv` must outlive the application; the two ports must as well.
    Applicazione(int& argc, char** argv, Avvisi& avvisi, Uscita& uscita);

    /// Runs `avvio` as the loop's first event, so that its failures end here too, and then the loop. Returns
    /// the loop's code. The loop doesn't end with its last window.
    int esegui(std::function<void()> avvio);

    bool notify(QObject* destinatario, QEvent* evento) override;

private:
    /// Of a second failure while the box of the first stands, nothing is shown.
    void guasto(const Guasto& g);

    Avvisi& avvisi_;
    Uscita& uscita_;
    Italiano italiano_;
    bool finita_ = false;
};

/// What the platform's error box says.
[[nodiscard]] Avviso avvisoDiGuasto(const Guasto& g);

} // namespace lumigrafo
