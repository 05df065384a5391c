#include "tests/announce/registrazione.h"

#include "tests/announce/attesa.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <iterator>
#include <limits>

namespace lumigrafo::prova {

namespace {

constexpr std::size_t kCampioniPasso = 160; // 10 ms at 16 kHz
constexpr std::size_t kBytePasso = kCampioniPasso * sizeof(std::int16_t);
constexpr double kUdibile = 150;
/// Steps that are blurred into one for a comparison: a recording's steps never fall on those of another.
constexpr std::size_t kSfumatura = 3;

double livello(const char* passo) {
    double somma = 0;
    for (std::size_t i = 0; i < kCampioniPasso; ++i) {
        std::int16_t campione;
        std::memcpy(&campione, passo + i * sizeof campione, sizeof campione);
        somma += static_cast<double>(campione) * campione;
    }
    return std::sqrt(somma / kCampioniPasso);
}

Profilo sfumato(const Profilo& profilo) {
    Profilo risultato;
    for (std::size_t i = 0; i + kSfumatura <= profilo.size(); ++i) {
        double somma = 0;
        for (std::size_t k = 0; k < kSfumatura; ++k)
            somma += profilo[i + k] * profilo[i + k];
        risultato.push_back(std::sqrt(somma / kSfumatura));
    }
    return risultato;
}

/// A way to lay a piece along a recording, up to one step of each.
struct Percorso {
    double diverso = std::numeric_limits<double>::infinity(); ///< sum of the differences
    double insieme = 0;                                       ///< sum of both levels
    std::size_t inizio = 0;

    [[nodiscard]] double differenza() const { return insieme > 0 ? diverso / insieme : diverso; }
};

Percorso piuPasso(Percorso p, double a, double b) {
    p.diverso += std::abs(a - b);
    p.insieme += a + b;
    return p;
}

} // namespace

Profilo senzaSilenzi(const Profilo& profilo) {
    Profilo suono;
    std::copy_if(profilo.begin(), profilo.end(), std::back_inserter(suono),
                 [](double livello) { return livello > kUdibile; });
    return suono;
}

double secondi(const Profilo& profilo) {
    return kSecondiPasso * static_cast<double>(profilo.size());
}

Posto cerca(const Profilo& pezzo, const Profilo& tutto) {
    const Profilo p = sfumato(pezzo), t = sfumato(tutto);
    // righe[i % 3][k]: the best way to lay the first i steps of the piece so that they end before step k. A
    // step of one may stand for two of the other, never for more: a piece isn't found in half of itself.
    std::array<std::vector<Percorso>, 3> righe;
    righe.fill(std::vector<Percorso>(t.size() + 1));
    for (std::size_t k = 0; k <= t.size(); ++k)
        righe[0][k] = {0, 0, k};
    for (std::size_t i = 1; i <= p.size(); ++i)
        for (std::size_t k = 0; k <= t.size(); ++k) {
            Percorso& qui = righe[i % 3][k] = {};
            const auto prova = [&](Percorso via) {
                if (via.differenza() < qui.differenza())
                    qui = via;
            };
            if (k < 1)
                continue;
            const double a = p[i - 1], b = t[k - 1];
            prova(piuPasso(righe[(i - 1) % 3][k - 1], a, b));
            if (k > 1)
                prova(piuPasso(piuPasso(righe[(i - 1) % 3][k - 2], a, t[k - 2]), a, b));
            if (i > 1)
                prova(piuPasso(piuPasso(righe[(i - 2) % 3][k - 1], p[i - 2], b), a, b));
        }
    Posto migliore;
    for (std::size_t k = 0; k <= t.size(); ++k) {
        const Percorso& via = righe[p.size() % 3][k];
        if (1 - via.differenza() > migliore.somiglianza)
            migliore = {via.inizio, k, 1 - via.differenza()};
    }
    return migliore;
}

Registrazione::~Registrazione() {
    parec_.disconnect();
    parec_.terminate();
    parec_.waitForFinished();
}

bool Registrazione::avvia(const QString& sorgente) {
    using namespace std::chrono_literals;
    QObject::connect(&parec_, &QProcess::readyReadStandardOutput,
                     [this] { dati_ += parec_.readAllStandardOutput(); });
    parec_.start(QStringLiteral("parec"),
                 {QStringLiteral("--device=") + sorgente, QStringLiteral("--format=s16le"),
                  QStringLiteral("--rate=16000"), QStringLiteral("--channels=1"), QStringLiteral("--raw"),
                  QStringLiteral("--latency-msec=20")});
    return attendi([this] { return passi() > 0; }, 5s);
}

std::size_t Registrazione::passi() const {
    return static_cast<std::size_t>(dati_.size()) / kBytePasso;
}

Profilo Registrazione::da(std::size_t passo) const {
    Profilo profilo;
    for (; passo < passi(); ++passo)
        profilo.push_back(livello(dati_.constData() + passo * kBytePasso));
    return profilo;
}

} // namespace lumigrafo::prova
