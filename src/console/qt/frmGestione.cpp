#include "console/qt/frmGestione.h"

#include "forms/qt/griglia_widget.h"
#include "platform/qt/aspetto.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenuBar>

namespace lumigrafo {

frmGestione::frmGestione() {
    setObjectName(QStringLiteral("frmGestione"));
    setWindowTitle(QStringLiteral("Lumigrafo"));
    setWindowState(Qt::WindowMaximized);
    creaMenu();
    ingrandisciMenu();
}

frmGestione::~frmGestione() = default;

void frmGestione::creaMenu() {
    voce("mnuImposta", QStringLiteral("&Imposta"), [this] { console_->mnuImposta(); });
    voce("mnuDatabase", QStringLiteral("&Database"), [this] { console_->mnuDatabase(); });
    mnuFiscale_ = voce("mnuFiscale", QStringLiteral("&Utilità Fiscali"), [this] { console_->mnuFiscale(); });
}

QAction* frmGestione::voce(const char* nome, const QString& testo, std::function<void()> azione) {
    QAction* voce = menuBar()->addAction(testo);
    voce->setObjectName(QString::fromLatin1(nome));
    connect(voce, &QAction::triggered, this, [azione = std::move(azione)] { azione(); });
    return voce;
}

void frmGestione::collega(Console& console) {
    console_ = &console;
    contenuto_ = std::make_unique<Finestra>(console.controlli(), this);
    contenuto_->setObjectName(QStringLiteral("contenuto")); // the window itself bears the layout's name
    // Unmaximised, its content has the design's size. Qt's own first size is a few pixels: everything would
    // be laid out, and its fonts loaded, for nothing.
    resize(contenuto_->width(), contenuto_->height() + menuBar()->sizeHint().height());
    setCentralWidget(contenuto_.get());
    contenuto_->alClic([this](const Controllo& c) { console_->clic(c.disegno().nome, c.disegno().indice); });
    contenuto_->alTasto([this](const QKeyEvent& evento) { return tasto(evento); });
    contenuto_->allaAttivazione([this] { console_->attiva(); });
    contenuto_->allaChiusura([this] {
        console_->scarica();
        return true;
    });
    for (int q = 0; q < kQuadranti; ++q) {
        GrigliaWidget& grid =
            contenuto_->collegaGriglia("grid", q, console.stato().grid[static_cast<std::size_t>(q)]);
        grid.alClic([this, q](int riga, int) { console_->toccoSuGriglia(q, riga); });
        grid.alPuntatore([this] { console_->puntatoreSuGriglia(); });
    }
}

/// The menu grows with the window, as what stands below it does.
void frmGestione::ingrandisciMenu() {
    constexpr double kCarattere = 16, kSopra = 13, kLato = 16;
    const double scala = aspetto::ingrandimento(size());
    const QString foglio =
        QStringLiteral("QMenuBar { font-size: %1px; } QMenuBar::item { padding: %2px %3px; }")
            .arg(qRound(kCarattere * scala))
            .arg(qRound(kSopra * scala))
            .arg(qRound(kLato * scala));
    if (menuBar()->styleSheet() != foglio)
        menuBar()->setStyleSheet(foglio);
}

void frmGestione::resizeEvent(QResizeEvent* evento) {
    ingrandisciMenu();
    QMainWindow::resizeEvent(evento);
}

bool frmGestione::tasto(const QKeyEvent& evento) {
    const QString testo = evento.text();
    const char32_t carattere = testo.isEmpty() ? U'\0' : static_cast<char32_t>(testo.toUcs4().constFirst());
    // Keys without a character (Shift among them) are no key presses to the console: a scanner sends Shift
    // before each capital.
    return carattere != U'\0' && console_->tasto(carattere);
}

void frmGestione::Mostra() {
    if (!isVisible())
        showMaximized();
    if (isMinimized())
        setWindowState((windowState() & ~Qt::WindowMinimized) | Qt::WindowActive);
    raise();
    activateWindow();
}

void frmGestione::InPrimoPiano() {
    raise();
    activateWindow();
}

void frmGestione::Ridisegna() {
    contenuto_->ridisegna();
}

void frmGestione::Massimizza() {
    setWindowState(windowState() | Qt::WindowMaximized);
}

void frmGestione::Ridisponi() {
    contenuto_->ridisponi();
}

void frmGestione::mnuFiscaleVisibile(bool visibile) {
    mnuFiscale_->setVisible(visibile);
}

} // namespace lumigrafo
