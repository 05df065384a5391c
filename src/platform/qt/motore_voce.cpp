#include "platform/qt/motore_voce.h"

#include <QLocale>
#include <QVoice>

#include <algorithm>
#include <utility>
#include <vector>

namespace lumigrafo {

namespace {

/// Qt's engines take a rate from -1 to 1 and a volume from 0 to 1.
double velocitaDelMotore(int Rate) {
    return std::clamp(Rate, -10, 10) / 10.0;
}
double volumeDelMotore(int Volume) {
    return std::clamp(Volume, 0, 100) / 100.0;
}

/// All voices of the machine, language by language.
std::vector<QVoice> vociDi(QTextToSpeech& motore) {
    std::vector<QVoice> voci;
    const QLocale prima = motore.locale();
    for (const QLocale& lingua : motore.availableLocales()) {
        motore.setLocale(lingua);
        for (const QVoice& voce : motore.availableVoices())
            voci.push_back(voce);
    }
    motore.setLocale(prima);
    return voci;
}

std::string descrizione(const QVoice& voce) {
    return (voce.name() + QStringLiteral(" - ") + voce.locale().nativeLanguageName()).toStdString();
}

/// The Italian voice to speak with by default. Chosen by name: the engine's own choice for a language may be
/// one of the many variants of a voice, whispering or croaking, which bear the voice's name and a plus sign.
const QVoice* voceItaliana(const std::vector<QVoice>& voci) {
    const QVoice* prima = nullptr;
    for (const QVoice& voce : voci) {
        if (voce.locale().language() != QLocale::Italian)
            continue;
        if (!voce.name().contains(u'+'))
            return &voce;
        if (!prima)
            prima = &voce;
    }
    return prima;
}

} // namespace

MotoreVoce::MotoreVoce(std::function<void(quint64)> finito, std::function<void()> assente)
    : finito_(std::move(finito)), assente_(std::move(assente)) {}

MotoreVoce::~MotoreVoce() {
    if (motore_)
        motore_->disconnect();
}

void MotoreVoce::accendi(Voce::Scelta scelta) {
    scelta_ = std::move(scelta);
    crea();
}

bool MotoreVoce::crea() {
    if (motore_) {
        motore_->disconnect();
        motore_.release()->deleteLater(); // its own signal may be on its way to us
    }
    motore_ = std::make_unique<QTextToSpeech>();
    velocita_.reset();
    volume_.reset();
    if (motore_->state() == QTextToSpeech::Error) {
        if (assente_)
            std::exchange(assente_, nullptr)();
        return false;
    }
    scegliVoce();
    connect(motore_.get(), &QTextToSpeech::stateChanged, this, [this](auto stato) { statoCambiato(stato); });
    return true;
}

void MotoreVoce::scegliVoce() {
    const std::vector<QVoice> voci = vociDi(*motore_);
    std::vector<std::string> descrizioni;
    descrizioni.reserve(voci.size());
    for (const QVoice& voce : voci)
        descrizioni.push_back(descrizione(voce));
    const auto scelta = scelta_(descrizioni);
    const QVoice* voce = scelta ? &voci.at(*scelta) : voceItaliana(voci);
    if (!voce)
        return;
    motore_->setLocale(voce->locale());
    motore_->setVoice(*voce);
}

void MotoreVoce::di(TestoVoce testo) {
    seguente_ = std::move(testo);
    if (fase_ == Fase::Ferma)
        consegna();
    else if (fase_ == Fase::Parla)
        taglia();
    // Else the engine is about to begin or to stop, and the text goes on from its report.
}

void MotoreVoce::taglia() {
    fase_ = Fase::Taglio;
    motore_->stop();
}

void MotoreVoce::consegna() {
    const TestoVoce t = *std::exchange(seguente_, std::nullopt);
    inCorso_ = t.numero;
    // For an empty text no engine reports anything. And an engine that failed doesn't recover: the service
    // may be back by now, but not for the old connection.
    if (t.testo.isEmpty() || !(accetta(t) || (crea() && accetta(t))))
        concludi();
}

bool MotoreVoce::accetta(const TestoVoce& testo) {
    if (motore_->state() == QTextToSpeech::Error)
        return false;
    fase_ = Fase::Consegna;
    imposta(velocitaDelMotore(testo.Rate), volumeDelMotore(testo.Volume));
    motore_->say(testo.testo);
    if (fase_ == Fase::Consegna)
        fase_ = Fase::Attesa;
    return motore_->state() != QTextToSpeech::Error;
}

void MotoreVoce::imposta(double velocita, double volume) {
    // Only what changes: where the speech service died meanwhile, a text is refused in good order, but the
    // client library of speech-dispatcher crashes on any other command.
    if (std::exchange(velocita_, velocita) != velocita)
        motore_->setRate(velocita);
    if (std::exchange(volume_, volume) != volume)
        motore_->setVolume(volume);
}

void MotoreVoce::statoCambiato(QTextToSpeech::State stato) {
    switch (stato) {
    case QTextToSpeech::Speaking:
        if (fase_ != Fase::Consegna && fase_ != Fase::Attesa)
            return;
        fase_ = Fase::Parla;
        if (seguente_)
            taglia();
        return;
    case QTextToSpeech::Ready:
    case QTextToSpeech::Error:
        if (fase_ != Fase::Ferma && fase_ != Fase::Consegna)
            concludi();
        return;
    case QTextToSpeech::Paused:
        return;
    }
}

void MotoreVoce::concludi() {
    fase_ = Fase::Ferma;
    if (seguente_)
        consegna();
    else
        finito_(inCorso_);
}

} // namespace lumigrafo
