#include "announce/qt/frm_fiscale_qt.h"

#include "forms/controlli.h"
#include "forms/qt/finestra.h"

#include <QApplication>
#include <QCoreApplication>
#include <QEventLoop>
#include <QScreen>
#include <QTimer>
#include <QWindow>

namespace lumigrafo {

namespace {

/// The window system shows a window within a few milliseconds; a receipt doesn't wait longer for it.
constexpr int kAttesaMs = 150;

class Aperta final : public FinestraFiscale::Mostrata {
public:
    Aperta() {
        const QWidget* attiva = QApplication::activeWindow();
        const QRect lavoro = (attiva ? attiva->screen() : QApplication::primaryScreen())->availableGeometry();
        QRect posto(QPoint(), finestra_.size());
        posto.moveCenter(lavoro.center());
        posto.moveTop(lavoro.top() + lavoro.height() / 8); // questions and messages come up in the middle
        finestra_.setGeometry(posto);
        finestra_.setAttribute(Qt::WA_ShowWithoutActivating);
        finestra_.winId(); // makes the system's window, so that it can be tied to the one it stands over
        finestra_.windowHandle()->setTransientParent(attiva ? attiva->windowHandle() : nullptr);
        finestra_.show();
        finestra_.raise();
        dipingi();
    }

private:
    void dipingi() {
        QTimer limite;
        limite.setSingleShot(true);
        limite.start(kAttesaMs);
        while (!finestra_.windowHandle()->isExposed() && limite.isActive())
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                            QEventLoop::WaitForMoreEvents);
        finestra_.repaint();
    }

    Controlli controlli_{kLayoutFiscale};
    Finestra finestra_{controlli_, nullptr,
                       Qt::Tool | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus};
};

} // namespace

std::unique_ptr<FinestraFiscale::Mostrata> FrmFiscaleQt::mostra() {
    return std::make_unique<Aperta>();
}

} // namespace lumigrafo
