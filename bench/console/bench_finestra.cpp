// The rebuild of the grids with the console's window, until it is painted, beside bare tables of Qt filled
// from the bare engine with the same cells.
#include "bench/console/nudo.h"
#include "bench/console/serata.h"
#include "console/qt/frmGestione.h"
#include "platform/qt/aspetto.h"
#include "platform/qt/pompa_qt.h"
#include "platform/qt/timers_qt.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMainWindow>
#include <QTableWidget>

#include <array>
#include <benchmark/benchmark.h>
#include <sqlite3.h>

using namespace lumigrafo;
using namespace lumigrafo::misure;

namespace {

constexpr QSize kFinestra(1280, 1024);
constexpr int kColonne = 3;
constexpr int kRighe = (kOrdini + kColonne - 1) / kColonne;

/// Counts the paintings of a widget: what isn't painted mustn't be measured as if it were.
class Pitture : public QObject {
public:
    explicit Pitture(QWidget& widget) { widget.installEventFilter(this); }
    void verifica(benchmark::State& stato) const {
        if (quante_ < static_cast<std::int64_t>(stato.iterations()))
            stato.SkipWithError("a grid was not painted each time");
    }
    bool eventFilter(QObject*, QEvent* evento) override {
        quante_ += evento->type() == QEvent::Paint;
        return false;
    }

private:
    std::int64_t quante_ = 0;
};

void dipingi(QWidget& finestra) {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(&finestra, QEvent::UpdateRequest);
}

void mostra(QWidget& finestra) {
    finestra.resize(kFinestra);
    finestra.show();
    QApplication::processEvents();
}

void finestra(benchmark::State& stato) {
    prova::Banco b;
    prepara(b);
    PompaQt pompa;
    TimersQt timers;
    frmGestione console;
    b.pompaVera = &pompa;
    b.timersVeri = &timers;
    b.finestraVera = &console;
    console.collega(b.console());
    mostra(console);
    b.caricata();
    QApplication::processEvents();
    Pitture pitture(*console.findChild<QWidget*>(QStringLiteral("grid(2)")));
    for (auto _ : stato) {
        b.console().clic("cmdAggiorna", kSenzaIndice);
        dipingi(console);
        dimentica(b);
    }
    pitture.verifica(stato);
}

QString cella(sqlite3_stmt* ordine) {
    return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(ordine, 0))) +
           QStringLiteral("  ") + QString::number(sqlite3_column_int(ordine, 1));
}

bool aperta(sqlite3_stmt* ordine, int reparto) {
    return sqlite3_column_int(ordine, 2 + reparto) != 0;
}

/// Three tables side by side, without heads.
template <typename Tabella>
struct Tabelle {
    QMainWindow finestra;
    std::array<Tabella*, kReparti> tabelle{};

    Tabelle() {
        auto* contenuto = new QWidget;
        auto* riga = new QHBoxLayout(contenuto);
        for (Tabella*& t : tabelle) {
            t = new Tabella;
            t->setFont(QFont(QStringLiteral("Liberation Sans"), 18, QFont::Bold));
            t->horizontalHeader()->hide();
            t->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
            t->verticalHeader()->hide();
            t->verticalHeader()->setDefaultSectionSize(54);
            t->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
            riga->addWidget(t);
        }
        finestra.setCentralWidget(contenuto);
    }
};

/// What comes first to hand: a table with an item a cell.
void finestraNuda(benchmark::State& stato) {
    prova::Banco b;
    prepara(b);
    RicostruzioneNuda archivio(b.cartella.percorso() / kFileArchivio);
    Tabelle<QTableWidget> t;
    for (QTableWidget* tabella : t.tabelle)
        tabella->setColumnCount(kColonne);
    mostra(t.finestra);
    Pitture pitture(*t.tabelle.back()->viewport());
    for (auto _ : stato) {
        for (QTableWidget* tabella : t.tabelle) {
            tabella->clearContents();
            tabella->setRowCount(kRighe);
        }
        std::array<int, kReparti> messi{};
        archivio.esegui([&](sqlite3_stmt* ordine) {
            for (std::size_t q = 0; q < kReparti; ++q) {
                if (!aperta(ordine, static_cast<int>(q)))
                    continue;
                auto* voce = new QTableWidgetItem(cella(ordine));
                voce->setTextAlignment(Qt::AlignCenter);
                t.tabelle[q]->setItem(messi[q] / kColonne, messi[q] % kColonne, voce);
                ++messi[q];
            }
        });
        dipingi(t.finestra);
    }
    pitture.verifica(stato);
}

/// The leanest model that a table takes.
class Celle : public QAbstractTableModel {
public:
    std::vector<QString> testi;
    void inizia() {
        beginResetModel();
        testi.clear();
    }
    void finisci() { endResetModel(); }
    [[nodiscard]] int rowCount(const QModelIndex& = {}) const override {
        return (static_cast<int>(testi.size()) + kColonne - 1) / kColonne;
    }
    [[nodiscard]] int columnCount(const QModelIndex& = {}) const override { return kColonne; }
    [[nodiscard]] QVariant data(const QModelIndex& dove, int ruolo) const override {
        if (ruolo == Qt::TextAlignmentRole)
            return QVariant(Qt::AlignCenter);
        const auto i = static_cast<std::size_t>(dove.row() * kColonne + dove.column());
        return ruolo == Qt::DisplayRole && i < testi.size() ? QVariant(testi[i]) : QVariant();
    }
};

void finestraNudaMagra(benchmark::State& stato) {
    prova::Banco b;
    prepara(b);
    RicostruzioneNuda archivio(b.cartella.percorso() / kFileArchivio);
    std::array<Celle, kReparti> celle;
    Tabelle<QTableView> t;
    for (std::size_t q = 0; q < kReparti; ++q)
        t.tabelle[q]->setModel(&celle[q]);
    mostra(t.finestra);
    Pitture pitture(*t.tabelle.back()->viewport());
    for (auto _ : stato) {
        for (Celle& c : celle)
            c.inizia();
        archivio.esegui([&](sqlite3_stmt* ordine) {
            for (std::size_t q = 0; q < kReparti; ++q)
                if (aperta(ordine, static_cast<int>(q)))
                    celle[q].testi.push_back(cella(ordine));
        });
        for (Celle& c : celle)
            c.finisci();
        dipingi(t.finestra);
    }
    pitture.verifica(stato);
}

} // namespace

BENCHMARK(finestra)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(finestraNuda)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(finestraNudaMagra)->Unit(benchmark::kMicrosecond)->UseRealTime();

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    QApplication applicazione(argc, argv);
    aspetto::applica(applicazione);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
