#pragma once

#include "console/console.h"
#include "forms/qt/finestra.h"

#include <QMainWindow>

#include <functional>
#include <memory>

class QAction;

namespace lumigrafo {

/// The operator's console as a window: it lays the controls out, hands its events to the logic and shows what
/// the logic changes.
class frmGestione : public QMainWindow, public FinestraConsole {
public:
    frmGestione();
    ~frmGestione() override;

    /// Shows the console's controls and grids from now on; it must outlive the window.
    void collega(Console& console);

    void Mostra() override;
    void InPrimoPiano() override;
    void Ridisegna() override;
    void Massimizza() override;
    void Ridisponi() override;
    void mnuFiscaleVisibile(bool visibile) override;

protected:
    void resizeEvent(QResizeEvent* evento) override;

private:
    void creaMenu();
    void ingrandisciMenu();
    QAction* voce(const char* nome, const QString& testo, std::function<void()> azione);
    [[nodiscard]] bool tasto(const QKeyEvent& evento);

    Console* console_ = nullptr;
    std::unique_ptr<Finestra> contenuto_;
    QAction* mnuFiscale_ = nullptr;
};

} // namespace lumigrafo
