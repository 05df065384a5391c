// Speaks called numbers with the real voice, records what comes out of the loudspeaker and compares it with
// what should. Argument: the sound source to record. Exit code 0: all heard; 1: not; 77: this machine has no
// voice.

#include "announce/annunciatore_vocale.h"
#include "platform/linux/orologio.h"
#include "platform/qt/pompa_qt.h"
#include "platform/qt/voce_qt.h"
#include "tests/announce/attesa.h"
#include "tests/announce/registrazione.h"

#include <QApplication>
#include <QTemporaryDir>

#include <array>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

namespace lumigrafo::prova {
namespace {

using namespace std::chrono_literals;

struct Chiamata {
    const char* testo;
    int parole; ///< words it is spoken in
};
constexpr std::array kChiamate = {
    Chiamata{"Numero A 12", 3},
    Chiamata{"Pizzeria al taglio B 345", 7},
    Chiamata{"Gelati 7", 2},
};

/// Two recordings of one text are alike to 0.96 or more, on a busy machine too, and sound for equally long
/// within a tenth; recordings of different texts are alike to 0.9 at most.
constexpr double kIntera = 0.93;
constexpr double kDurata = 0.1;
/// Part of a text that may have been heard before it is cut off.
constexpr double kTagliata = 0.6;
/// Steps of silence recorded before each piece: the recording lags behind by a varying bit.
constexpr std::size_t kAnticipo = 20;
/// Steps of silence behind the last text: the sound is still on its way through the sound server.
constexpr std::size_t kCoda = 100;
/// A machine that stands still for a moment garbles a recording: what was heard wrong is listened to again.
constexpr int kTentativi = 3;

bool ugualeDurata(double a, double b) {
    return std::abs(a - b) <= kDurata * b;
}

class Dati : public DatiVoce {
public:
    [[nodiscard]] std::int16_t VelocitaVocale() const override { return 0; }
    [[nodiscard]] std::int16_t VolumeVocale() const override { return 100; }
    [[nodiscard]] bool& VoceAttiva() override { return attiva_; }

private:
    bool attiva_ = true;
};

class Ascolto {
public:
    explicit Ascolto(const std::string& cartella) : log_(cartella, orologio_) { annunciatore_.ScegliVoce(); }

    /// Exit code of the program.
    int esegui(const QString& sorgente) {
        if (!registrazione_.avvia(sorgente)) {
            std::fprintf(stderr, "nothing comes from the sound source\n");
            return 1;
        }
        for (int tentativo = 0; tentativo < kTentativi; ++tentativo) {
            if (tentativo > 0)
                std::printf("Listening again.\n");
            bene_ = true;
            for (std::size_t i = 0; i < kChiamate.size() && !assente_; ++i)
                una(i);
            if (assente_)
                return 77;
            if (bene_)
                treInFila();
            if (bene_)
                sopra();
            if (bene_)
                return 0;
        }
        return 1;
    }

private:
    void verifica(bool vero, const std::string& cosa) {
        std::printf("%s  %s\n", vero ? "ok   " : "WRONG", cosa.c_str());
        std::fflush(stdout);
        bene_ = bene_ && vero;
    }

    /// What is heard from now until the voice falls silent.
    template <typename Azione>
    Profilo ascolta(Azione azione) {
        const std::size_t inizio = registrazione_.passi();
        attendi([&] { return registrazione_.passi() >= inizio + kAnticipo; }, 5s);
        azione();
        if (!attendi([this] { return dati_.VoceAttiva(); }, 30s)) // the engine starts with the first text
            verifica(false, "the voice reports its end");
        const std::size_t fine = registrazione_.passi();
        attendi(
            [&] {
                const std::size_t passi = registrazione_.passi();
                return passi >= fine + kCoda && senzaSilenzi(registrazione_.da(passi - kCoda)).empty();
            },
            5s);
        return senzaSilenzi(registrazione_.da(inizio));
    }

    void una(std::size_t i) {
        const Chiamata& chiamata = kChiamate[i];
        singole_[i] = ascolta([&] { annunciatore_.AccodaAnnuncio(chiamata.testo); });
        if (assente_)
            return;
        const double durata = secondi(singole_[i]);
        verifica(durata > 0.15 * chiamata.parole && durata < 0.9 * chiamata.parole + 0.5,
                 "\"" + std::string(chiamata.testo) + "\" sounds for " + std::to_string(durata) + " s, " +
                     std::to_string(chiamata.parole) + " words");
    }

    /// True if the text is heard whole; `posto` is where.
    bool intera(std::size_t i, const Profilo& udito, Posto& posto) const {
        posto = cerca(singole_[i], udito);
        const Profilo qui(udito.begin() + static_cast<std::ptrdiff_t>(posto.inizio),
                          udito.begin() + static_cast<std::ptrdiff_t>(posto.fine));
        std::printf("       \"%s\" alike %.3f from %.2f s to %.2f s\n", kChiamate[i].testo, posto.somiglianza,
                    kSecondiPasso * static_cast<double>(posto.inizio),
                    kSecondiPasso * static_cast<double>(posto.fine));
        return posto.somiglianza > kIntera && ugualeDurata(secondi(qui), secondi(singole_[i]));
    }

    void treInFila() {
        const Profilo udito = ascolta([this] {
            for (const Chiamata& chiamata : kChiamate)
                annunciatore_.AccodaAnnuncio(chiamata.testo);
        });
        bool intere = true, inOrdine = true;
        std::size_t libero = 0;
        double somma = 0;
        for (std::size_t i = 0; i < kChiamate.size(); ++i) {
            Posto posto;
            intere = intera(i, udito, posto) && intere;
            inOrdine = inOrdine && posto.inizio >= libero;
            libero = posto.fine;
            somma += secondi(singole_[i]);
        }
        const double durata = secondi(udito);
        verifica(intere, "three quick calls are heard whole");
        verifica(inOrdine, "one after the other, in their order");
        verifica(ugualeDurata(durata, somma), "together they sound for " + std::to_string(durata) +
                                                  " s, alone for " + std::to_string(somma) + " s");
    }

    void sopra() {
        const Profilo udito = ascolta([this] {
            const std::size_t inizio = registrazione_.passi();
            annunciatore_.AccodaAnnuncio(kChiamate[1].testo);
            annunciatore_.AccodaAnnuncio(kChiamate[0].testo);
            attendi([&] { return secondi(senzaSilenzi(registrazione_.da(inizio))) > 0.3; }, 5s);
            annunciatore_.Parla(kChiamate[2].testo);
        });
        Posto subito, dopo;
        const bool intere = intera(2, udito, subito) && intera(0, udito, dopo);
        const double prima = kSecondiPasso * static_cast<double>(subito.inizio);
        verifica(prima > 0 && prima < kTagliata * secondi(singole_[1]),
                 "a text spoken at once cuts off the one in progress, after " + std::to_string(prima) + " s");
        verifica(intere && dopo.inizio >= subito.fine, "it is heard whole, and the queue goes on behind it");
    }

    OrologioSistema orologio_;
    PompaQt pompa_;
    Dati dati_;
    RegistroLog log_;
    VoceQt voce_;
    bool assente_ = false;
    AnnunciatoreVocale annunciatore_{voce_, log_, pompa_, dati_, [this](const std::string& testo) {
                                         std::printf("%s\n", testo.c_str());
                                         assente_ = true;
                                     }};
    Registrazione registrazione_;
    std::array<Profilo, kChiamate.size()> singole_; ///< each call as it sounds alone
    bool bene_ = true;
};

} // namespace
} // namespace lumigrafo::prova

int main(int argc, char** argv) {
    QApplication applicazione(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s SOURCE\n", argv[0]);
        return 1;
    }
    const QTemporaryDir cartella;
    lumigrafo::prova::Ascolto ascolto(cartella.path().toStdString());
    return ascolto.esegui(QString::fromLocal8Bit(argv[1]));
}
