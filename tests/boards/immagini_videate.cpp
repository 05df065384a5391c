#include "boards/qt/finestra_videata_qt.h"
#include "forms/qt/immagine.h"
#include "platform/qt/applicazione.h"
#include "platform/qt/avvisi_qt.h"
#include "platform/qt/caratteri.h"
#include "platform/qt/uscita_qt.h"
#include "tests/boards/banco_videata.h"

#include <QImage>
#include <QPainter>
#include <QString>
#include <QWidget>

#include <chrono>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

// Draws every board with an evening's numbers, from its real window, for the manual.
namespace lumigrafo::prova {
namespace {

struct Scena {
    const char* file;
    TipoVideata tipo;
    std::vector<std::pair<const char*, ValoreIni>> impostazioni;
    bool pubblicita = false;
};

constexpr std::int32_t kPetrolio = rgb(16, 74, 92).v;
constexpr std::int32_t kBordeaux = rgb(104, 28, 44).v;
constexpr std::int32_t kBosco = rgb(28, 82, 52).v;
constexpr std::int32_t kNotte = rgb(18, 44, 82).v;
constexpr std::int32_t kAmbra = rgb(255, 214, 102).v;

const std::vector<std::pair<const char*, ValoreIni>> kTreColori{
    {"ColoreSfondo0", kPetrolio}, {"ColoreSfondo1", kBordeaux}, {"ColoreSfondo2", kBosco}};

std::vector<std::pair<const char*, ValoreIni>>
conTreColori(std::vector<std::pair<const char*, ValoreIni>> altre) {
    altre.insert(altre.end(), kTreColori.begin(), kTreColori.end());
    return altre;
}

const std::vector<Scena> kScene{
    {"frmLumigrafo", TipoVideata::frmLumigrafo, kTreColori},
    {"frmLumigrafooRIZZ", TipoVideata::frmLumigrafooRIZZ,
     conTreColori({{"ResizePubblicita", 1}, {"PubblicitaMirtolanda", 1}}), true},
    {"frmLumigrafoOrizz9numeri", TipoVideata::frmLumigrafoOrizz9numeri, kTreColori},
    {"frmLumigrafo1Reparto",
     TipoVideata::frmLumigrafo1Reparto,
     {{"ColoreSfondo0", kPetrolio}, {"ResizePubblicita", 1}},
     true},
    {"frmLumigrafo1Reparto9numeri", TipoVideata::frmLumigrafo1Reparto9numeri, {{"ColoreSfondo0", kPetrolio}}},
    {"frmLumigrafo1RepartoBig",
     TipoVideata::frmLumigrafo1RepartoBig,
     {{"ColoreSfondo0", kNotte}, {"ColoreTesto0", kAmbra}, {"ResizePubblicita", 1}},
     true},
    {"frmLumigrafoPerson", TipoVideata::frmLumigrafoPerson, {}},
    {"frmAvantiProssimo", TipoVideata::frmAvantiProssimo, {{"ColoreSfondo0", kBosco}}},
    {"frmAvantiProssimo-2-casse",
     TipoVideata::frmAvantiProssimo,
     {{"ColoreSfondo0", kBosco}, {"QuanteCasse", 2}},
     true},
};

void disegnaPubblicita(const std::filesystem::path& file) {
    QImage carta(1800, 540, QImage::Format_RGB32);
    QPainter p(&carta);
    p.setRenderHint(QPainter::Antialiasing);
    p.fillRect(carta.rect(), QColor(214, 92, 62));
    p.fillRect(QRect(0, 0, 1800, 118), QColor(72, 36, 70)); // the evening sky
    p.setPen(Qt::NoPen);
    for (int i = 0; i < 18; ++i) { // a string of lamps
        const int y = 45 + (i % 6 < 3 ? i % 6 : 6 - i % 6) * 14;
        p.setBrush(QColor(255, 214, 102));
        p.drawEllipse(QPoint(50 + i * 100, y), 15, 18);
    }
    p.setPen(Qt::white);
    p.setFont(carattere(QStringLiteral("Arial"), 128, true, false));
    p.drawText(QRect(0, 130, 1800, 220), Qt::AlignCenter, QStringLiteral("Musica dal vivo"));
    p.setFont(carattere(QStringLiteral("Arial"), 64, false, false));
    p.drawText(QRect(0, 330, 1800, 130), Qt::AlignCenter,
               QString::fromUtf8("ogni sera dalle 21, sotto i tigli"));
    p.end();
    carta.save(QString::fromStdString(file.string()), "JPG", 90);
}

void scriviNumeri(BancoVideata& banco) {
    const char* const sigle[] = {"A", "B", ""};
    constexpr int kUltimi[] = {128, 47, 1203};
    constexpr int kPosti[] = {3, 2, 1, 4, 5, 6, 7, 8, 9}; // by age
    for (int slot = 0; slot < 3; ++slot)
        for (int i = 0; i < 9; ++i) {
            const std::string sigla = sigle[slot];
            banco.stato.ScriviIni(std::to_string(slot), "Numero" + std::to_string(kPosti[i]),
                                  (sigla.empty() ? "" : sigla + " ") + std::to_string(kUltimi[slot] - i));
        }
}

bool disegna(const Scena& scena, const std::filesystem::path& cartella, QSize misura) {
    BancoVideata banco;
    banco.console.reparti = {"CUCINA", "BAR", "PIZZERIA"};
    for (const auto& [chiave, valore] : scena.impostazioni)
        banco.imposta(chiave, valore);
    scriviNumeri(banco);
    banco.impostaPosto("0", "0", std::to_string(misura.width() * 15).c_str(),
                       std::to_string(misura.height() * 15).c_str());
    if (scena.pubblicita)
        disegnaPubblicita(banco.cartella.percorso() / "pubblicita1.jpg");
    banco.videata = creaVideata(scena.tipo, banco.servizi, fabbricaFinestreQt());
    banco.videata->Mostra();
    QCoreApplication::processEvents();
    banco.timers.avanza(std::chrono::milliseconds(10000));
    const char* const casse[] = {"A", "B", "C", "D", "E"};
    int numero = 241;
    for (const char* cassa : casse)
        banco.videata->Lampeggia(cassa, std::to_string(numero++));
    bool fatta = false;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->isVisible() && w->objectName().startsWith(QLatin1String("frm"))) {
            for (QWidget* figlio : w->findChildren<QWidget*>())
                if (auto* immagine = dynamic_cast<ImmagineWidget*>(figlio))
                    immagine->attendi();
            fatta = w->grab().save(QString::fromStdString((cartella / scena.file).string() + ".png"));
        }
    banco.videata.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return fatta;
}

} // namespace
} // namespace lumigrafo::prova

/// FOLDER [WIDTH HEIGHT]: one picture a board, 1920 by 1080 unless told otherwise.
int main(int argc, char** argv) {
    using namespace lumigrafo;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    AvvisiQt avvisi;
    UscitaQt uscita;
    Applicazione applicazione(argc, argv, avvisi, uscita);
    if (argc != 2 && argc != 4) {
        std::fputs("Usage: immagini_videate FOLDER [WIDTH HEIGHT]\n", stderr);
        return 2;
    }
    const QSize misura = argc == 4 ? QSize(std::atoi(argv[2]), std::atoi(argv[3])) : QSize(1920, 1080);
    for (const prova::Scena& scena : prova::kScene)
        if (!prova::disegna(scena, argv[1], misura)) {
            std::fprintf(stderr, "No picture of %s\n", scena.file);
            return 1;
        }
    return 0;
}
