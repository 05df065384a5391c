#include "platform/finti/finti.h"

#include "platform/guasto.h"

#include <algorithm>
#include <utility>

namespace lumigrafo {

namespace {

void annota(Diario* diario, std::string riga) {
    if (diario)
        diario->push_back(std::move(riga));
}

} // namespace

void OrologioFinto::attendi(std::chrono::milliseconds durata) {
    annota(diario_, "attendi " + std::to_string(durata.count()));
    atteso += durata;
    if (durante)
        durante();
}

void PompaFinta::cedi(std::string_view punto, Ammessi) {
    punti.emplace_back(punto);
    annota(diario_, "cedi " + punti.back());
    if (sempre)
        sempre(punto);
    if (auto nodo = azioni_.extract(std::string(punto)))
        nodo.mapped()();
}

class TimersFinti::TimerFinto : public Timer {
public:
    TimerFinto(TimersFinti& padre, std::chrono::milliseconds periodo, std::function<void()> scatto)
        : padre_(padre), periodo_(periodo), scatto_(std::move(scatto)) {
        padre_.tutti_.push_back(this);
    }
    ~TimerFinto() override { std::erase(padre_.tutti_, this); }
    void abilita(bool acceso) override {
        if (acceso && !acceso_)
            prossimo_ = padre_.ora_ + periodo_;
        acceso_ = acceso;
    }
    [[nodiscard]] bool abilitato() const override { return acceso_; }
    void intervallo(std::chrono::milliseconds periodo) override {
        periodo_ = periodo;
        prossimo_ = padre_.ora_ + periodo_;
    }
    [[nodiscard]] bool scaduto(std::chrono::milliseconds quando) const {
        return acceso_ && periodo_.count() > 0 && prossimo_ <= quando;
    }
    [[nodiscard]] std::chrono::milliseconds prossimo() const { return prossimo_; }
    void scatta(std::chrono::milliseconds ora) {
        prossimo_ = ora + periodo_;
        const auto azione = scatto_; // the tick may destroy its timer
        azione();
    }

private:
    TimersFinti& padre_;
    std::chrono::milliseconds periodo_;
    std::function<void()> scatto_;
    std::chrono::milliseconds prossimo_{0};
    bool acceso_ = false;
};

TimersFinti::~TimersFinti() = default;

std::unique_ptr<Timer> TimersFinti::crea(std::chrono::milliseconds periodo, std::function<void()> scatto) {
    return std::make_unique<TimerFinto>(*this, periodo, std::move(scatto));
}

void TimersFinti::avanza(std::chrono::milliseconds durata) {
    const auto fine = ora_ + durata;
    for (;;) {
        TimerFinto* primo = nullptr;
        for (TimerFinto* t : tutti_)
            if (t->scaduto(fine) && (!primo || t->prossimo() < primo->prossimo()))
                primo = t;
        if (!primo)
            break;
        ora_ = std::max(ora_, primo->prossimo());
        primo->scatta(ora_);
    }
    ora_ = fine;
}

void TimersFinti::salta(std::chrono::milliseconds durata) {
    ora_ += durata;
    const auto scaduti = tutti_;
    for (TimerFinto* t : scaduti)
        if (std::find(tutti_.begin(), tutti_.end(), t) != tutti_.end() && t->scaduto(ora_))
            t->scatta(ora_);
}

int TimersFinti::accesi() const {
    return static_cast<int>(
        std::count_if(tutti_.begin(), tutti_.end(), [](const TimerFinto* t) { return t->abilitato(); }));
}

Risposta AvvisiFinti::chiedi(const Avviso& avviso) {
    mostrati.push_back(avviso);
    annota(diario_, "avviso " + avviso.testo);
    if (risposte.empty())
        return avviso.bottoni == Bottoni::Ok ? Risposta::Ok : Risposta::Si;
    const Risposta r = risposte.front();
    risposte.pop_front();
    return r;
}

int ProcessiFinti::termina(const std::string& nome) {
    annota(diario_, "termina " + nome);
    const auto trovato = inEsecuzione.find(nome);
    return trovato == inEsecuzione.end() ? 0 : std::exchange(trovato->second, 0);
}

void ProcessiFinti::avvia(const std::filesystem::path& programma, const std::vector<std::string>& argomenti,
                          StileFinestra) {
    std::string riga = programma.string();
    for (const auto& a : argomenti)
        riga += " " + a;
    annota(diario_, "avvia " + riga);
    avviati.push_back(std::move(riga));
}

bool SistemaFinto::istanzaPrecedente() {
    annota(diario_, "istanza");
    return precedente;
}

bool SistemaFinto::eco(const std::string& indirizzo) {
    annota(diario_, "eco " + indirizzo);
    echi.push_back(indirizzo);
    return risponde;
}

void DesktopFinto::estendi() {
    annota(diario_, "estendi");
    if (!capace)
        throw Guasto(guasti::kFileNonTrovato);
}

void DesktopFinto::apriImpostazioni(const std::filesystem::path& comandi) {
    annota(diario_, "impostazioni schermo " + comandi.filename().string());
    if (!capace)
        throw Guasto(guasti::kFileNonTrovato);
}

void DesktopFinto::apriTastiera(const std::filesystem::path& programma) {
    annota(diario_, "tastiera " + programma.string());
    if (!capace)
        throw Guasto(guasti::kFileNonTrovato);
}

void UscitaFinta::termina(int codice) {
    annota(diario_, "fine " + std::to_string(codice));
    throw FineProcesso{codice};
}

} // namespace lumigrafo
