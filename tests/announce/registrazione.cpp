#include "tests/announce/registrazione.h"

#include "tests/announce/attesa.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <span>

namespace lumigrafo::prova {

namespace {

constexpr std::size_t kCampioniPasso = 160; // 10 ms at 16 kHz
constexpr std::size_t kBytePasso = kCampioniPasso * sizeof(std::int16_t);
constexpr double kUdibile = 150;
/// Steps that are blurred into one for a comparison: a recording's steps never fall on those of another.
constexpr std::size_t kSfumatura = 5;

bool udibile(double livello) {
    return livello > kUdibile;
}

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

/// Correlation of two pieces of one length.
double correlazione(std::span<const double> a, std::span<const double> b) {
    double sa = 0, sb = 0, saa = 0, sbb = 0, sab = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
        sa += a[i];
        sb += b[i];
        saa += a[i] * a[i];
        sbb += b[i] * b[i];
        sab += a[i] * b[i];
    }
    const auto n = static_cast<double>(a.size());
    const double varianze = (saa - sa * sa / n) * (sbb - sb * sb / n);
    return varianze > 0 ? (sab - sa * sb / n) / std::sqrt(varianze) : 0;
}

} // namespace

Profilo senzaSilenzi(const Profilo& profilo) {
    const auto inizio = std::find_if(profilo.begin(), profilo.end(), udibile);
    const auto fine = std::find_if(profilo.rbegin(), profilo.rend(), udibile).base();
    return inizio < fine ? Profilo(inizio, fine) : Profilo{};
}

double secondiUditi(const Profilo& profilo) {
    return kSecondiPasso * static_cast<double>(std::count_if(profilo.begin(), profilo.end(), udibile));
}

Posto cerca(const Profilo& pezzo, const Profilo& tutto) {
    const Profilo p = sfumato(pezzo), t = sfumato(tutto);
    Posto migliore;
    for (std::size_t i = 0; i + p.size() <= t.size(); ++i) {
        const double c = correlazione(p, std::span(t).subspan(i, p.size()));
        if (c > migliore.somiglianza)
            migliore = {i, c};
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
