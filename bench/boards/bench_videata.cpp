// What a board does all evening: a tick of the blink, a new number, the next advertising picture, the
// operator's message; each until it is painted, beside a bare window that does the same.
#include "boards/crea_videata.h"
#include "boards/qt/finestra_videata_qt.h"
#include "forms/qt/immagine.h"
#include "platform/finti/finti.h"
#include "platform/finti/scelta_file_finta.h"
#include "platform/qt/aspetto.h"
#include "platform/qt/caratteri.h"
#include "tests/sostegno/cartella_temporanea.h"

#include <QApplication>
#include <QImageReader>
#include <QImageWriter>
#include <QLabel>
#include <QPainter>
#include <QThreadPool>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>

using namespace lumigrafo;
using namespace std::chrono_literals;

namespace {

constexpr Rettangolo kPosto{0, 0, 28800, 16200}; // 1920x1080
constexpr QSize kFoto(4000, 3000);
constexpr QSize kFotoMassima(8000, 6000); // 48 megapixels

class Reparti : public DatiConsole {
public:
    [[nodiscard]] std::string Reparto(int) const override { return "Cucina"; }
    [[nodiscard]] bool RepartoInUso(int) const override { return true; }
    [[nodiscard]] bool SoloAndroid() const override { return false; }
};

/// A board on the screen, with timers that tick when told.
struct Tabellone {
    prova::CartellaTemporanea cartella;
    Ambiente ambiente{cartella.percorso(), "", ""};
    PompaFinta pompa;
    TimersFinti timers;
    Reparti reparti;
    SceltaFileFinta sceltaFile;
    ServiziSchede servizi{ambiente, pompa, timers, reparti, sceltaFile};
    std::unique_ptr<Videata> videata;

    explicit Tabellone(TipoVideata tipo, QSize misuraFoto = kFoto, bool progressiva = false) {
        FileIni(ambiente.file(kFileImpostazioni)).ScriviIni(kSezioneImpostazioni, "ResizePubblicita", 1);
        QImage foto(misuraFoto, QImage::Format_RGB32);
        foto.fill(Qt::darkCyan);
        QPainter(&foto).drawText(200, 200, QStringLiteral("Musica dal vivo"));
        QImageWriter scrittore(QString::fromStdString(ambiente.file("pubblicita1.jpg").string()));
        scrittore.setProgressiveScanWrite(progressiva);
        scrittore.write(foto);
        videata = creaVideata(tipo, servizi, fabbricaFinestreQt());
        videata->Mostra();
        videata->Posiziona(kPosto);
        videata->controlli()("lblNumero3", 0).Caption("A 128");
        QApplication::processEvents();
    }
    ~Tabellone() {
        videata.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    Tabellone(const Tabellone&) = delete;
    Tabellone& operator=(const Tabellone&) = delete;
    [[nodiscard]] QWidget& finestra() const { return *QApplication::topLevelWidgets().front(); }
    void dipingi() const {
        QCoreApplication::sendPostedEvents();
        for (QWidget* w : QApplication::topLevelWidgets())
            QCoreApplication::sendPostedEvents(w, QEvent::UpdateRequest);
    }
    void attendiFigura() const {
        dynamic_cast<ImmagineWidget&>(*finestra().findChild<QWidget*>(QStringLiteral("picPubblicita")))
            .attendi();
    }
};

/// A window with a label of the board's big numbers.
struct Nudo {
    QWidget finestra;
    QLabel etichetta{&finestra};
    Nudo() {
        finestra.setStyleSheet(QStringLiteral("background:black; color:white"));
        finestra.resize(1920, 1080);
        etichetta.setGeometry(40, 60, 580, 260);
        etichetta.setAlignment(Qt::AlignCenter);
        etichetta.setFont(carattere(QStringLiteral("Arial Narrow"), 208, true, false));
        etichetta.setText(QStringLiteral("A 128"));
        finestra.show();
        QApplication::processEvents();
    }
    void dipingi() { QCoreApplication::sendPostedEvents(&finestra, QEvent::UpdateRequest); }
};

void lampeggio(benchmark::State& stato) {
    Tabellone t(TipoVideata::frmLumigrafo);
    for (auto _ : stato) {
        t.videata->Blinka(0);
        t.timers.avanza(300ms);
        t.timers.avanza(300ms); // the second tick hides the number
        t.dipingi();
    }
}

void lampeggioNudo(benchmark::State& stato) {
    Nudo n;
    for (auto _ : stato) {
        n.etichetta.show();
        n.etichetta.hide();
        n.etichetta.show();
        n.etichetta.hide();
        n.dipingi();
    }
}

void cambioNumero(benchmark::State& stato) {
    Tabellone t(TipoVideata::frmLumigrafo);
    int numero = 100;
    for (auto _ : stato) {
        Controlli& c = t.videata->controlli();
        const char* eta[] = {"lblNumero6", "lblNumero5", "lblNumero4",
                             "lblNumero1", "lblNumero2", "lblNumero3"};
        for (int i = 0; i < 5; ++i)
            c(eta[i], 0).Caption(c(eta[i + 1], 0).Caption());
        c("lblNumero3", 0).Caption("A " + std::to_string(numero++ % 900 + 100));
        t.dipingi();
    }
}

void cambioNudo(benchmark::State& stato) {
    Nudo n;
    int numero = 100;
    for (auto _ : stato) {
        n.etichetta.setText(QStringLiteral("A %1").arg(numero++ % 900 + 100));
        n.dipingi();
    }
}

/// A message as long as the argument says, a new one each time.
std::string messaggio(benchmark::State& stato, int volta) {
    const std::string frase = "C'è da spostare al più presto una FIAT BIANCHINA targata EG 121 BT. ";
    std::string testo = std::to_string(volta % 10) + " ";
    while (testo.size() < static_cast<std::size_t>(stato.range(0)))
        testo += frase;
    return testo;
}

void comunicazione(benchmark::State& stato) {
    Tabellone t(TipoVideata::frmLumigrafo);
    int volta = 0;
    for (auto _ : stato) {
        stato.PauseTiming();
        t.videata->controlli()("picComunicazione").Visible(false);
        t.dipingi();
        const std::string testo = messaggio(stato, volta++);
        stato.ResumeTiming();
        // What the message window's button does.
        t.videata->controlli()("lblComunicazione").Caption(testo);
        t.videata->controlli()("picComunicazione").ZOrder();
        t.videata->controlli()("picComunicazione").Visible(true);
        t.videata->Ridisegna();
    }
}

void comunicazioneNuda(benchmark::State& stato) {
    Nudo n;
    n.etichetta.setGeometry(n.finestra.rect());
    n.etichetta.setWordWrap(true);
    n.etichetta.setFont(carattere(QStringLiteral("Arial"), stato.range(0) > 1000 ? 24 : 140, true, false));
    int volta = 0;
    for (auto _ : stato) {
        stato.PauseTiming();
        n.etichetta.hide();
        n.dipingi();
        const QString testo = QString::fromStdString(messaggio(stato, volta++));
        stato.ResumeTiming();
        n.etichetta.setText(testo);
        n.etichetta.show();
        n.etichetta.update(); // a show alone leaves the painting to a later turn of the loop
        n.dipingi();
    }
}

void immagine(benchmark::State& stato) {
    Tabellone t(TipoVideata::frmLumigrafo1Reparto);
    for (auto _ : stato) {
        t.timers.avanza(20s); // with one picture every second tick shows it
        t.attendiFigura();
        t.dipingi();
    }
}

/// What the blink waits for at a picture's turn: the tick, and later the delivery with its repaint. The
/// decoding itself, on another thread, isn't counted.
void fermoDelLampeggio(benchmark::State& stato) {
    using Orologio = std::chrono::steady_clock;
    Tabellone t(TipoVideata::frmLumigrafo1Reparto, kFotoMassima, stato.range(0) != 0);
    for (auto _ : stato) {
        const auto scatto = Orologio::now();
        t.timers.avanza(20s);
        const auto mentre = Orologio::now() - scatto;
        QThreadPool::globalInstance()->waitForDone();
        const auto consegna = Orologio::now();
        t.dipingi();
        stato.SetIterationTime(
            std::chrono::duration<double>(std::max(mentre, Orologio::now() - consegna)).count());
    }
}

void immagineNuda(benchmark::State& stato) {
    Tabellone t(TipoVideata::frmLumigrafo1Reparto); // for its picture
    Nudo n;
    n.etichetta.setGeometry(0, 560, 1905, 500);
    const QString file = QString::fromStdString(t.ambiente.file("pubblicita1.jpg").string());
    for (auto _ : stato) {
        QImageReader lettore(file);
        lettore.setScaledSize(n.etichetta.size());
        n.etichetta.setPixmap(QPixmap::fromImage(lettore.read()));
        n.dipingi();
    }
}

} // namespace

BENCHMARK(lampeggio)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(lampeggioNudo)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(cambioNumero)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(cambioNudo)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(comunicazione)->Arg(60)->Arg(5000)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(comunicazioneNuda)->Arg(60)->Arg(5000)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(immagine)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(fermoDelLampeggio)
    ->ArgName("progressiva")
    ->Arg(0)
    ->Arg(1)
    ->Unit(benchmark::kMicrosecond)
    ->UseManualTime();
BENCHMARK(immagineNuda)->Unit(benchmark::kMicrosecond)->UseRealTime();

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    QApplication applicazione(argc, argv);
    aspetto::applica(applicazione);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
