#pragma once

#include "platform/alimentazione.h"
#include "platform/avvisi.h"
#include "platform/desktop.h"
#include "platform/orologio.h"
#include "platform/pompa.h"
#include "platform/processi.h"
#include "platform/schermi.h"
#include "platform/sistema.h"
#include "platform/timer.h"

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Fakes of the ports for tests: they keep what they were told, in order, and answer from a script. Nothing
/// here waits, shows or starts anything.
namespace lumigrafo {

/// What all fakes of one test were told, in one list, so that the order across ports can be compared.
using Diario = std::vector<std::string>;

/// Virtual time: a wait moves the clock on, and nothing else does but the test.
class OrologioFinto : public Orologio {
public:
    explicit OrologioFinto(Diario* diario = nullptr) : diario_(diario) {}
    DataOra ora{{2026, 3, 15}, 20, 30, 0};
    std::chrono::milliseconds atteso{0}; ///< sum of all waits
    std::function<void()> durante;       ///< runs inside each wait: what other machines do meanwhile

    [[nodiscard]] DataOra adesso() const override { return ora; }
    void attendi(std::chrono::milliseconds durata) override;

private:
    Diario* diario_;
};

/// Runs what a test put at a named point, once; other points pass.
class PompaFinta : public Pompa {
public:
    explicit PompaFinta(Diario* diario = nullptr) : diario_(diario) {}
    /// `azione` runs at the next `cedi` of that point.
    void alPunto(std::string punto, std::function<void()> azione) {
        azioni_.emplace(std::move(punto), std::move(azione));
    }
    /// Runs at every point.
    std::function<void(std::string_view punto)> sempre;
    std::vector<std::string> punti; ///< every point passed

    void cedi(std::string_view punto, Ammessi ammessi) override;

private:
    Diario* diario_;
    std::multimap<std::string, std::function<void()>> azioni_;
};

/// Timers that tick when the test moves time on.
class TimersFinti : public Timers {
public:
    ~TimersFinti() override;
    [[nodiscard]] std::unique_ptr<Timer> crea(std::chrono::milliseconds periodo,
                                              std::function<void()> scatto) override;
    /// Moves on, and runs each tick that falls due, in order of time.
    void avanza(std::chrono::milliseconds durata);
    /// Moves on, and runs each timer that fell due once, as a loop does that was blocked meanwhile.
    void salta(std::chrono::milliseconds durata);
    [[nodiscard]] int accesi() const;

private:
    class TimerFinto;
    std::vector<TimerFinto*> tutti_;
    std::chrono::milliseconds ora_{0};
};

/// Keeps every box and answers from the script; with an empty script, the first button (OK, yes).
class AvvisiFinti : public Avvisi {
public:
    explicit AvvisiFinti(Diario* diario = nullptr) : diario_(diario) {}
    std::vector<Avviso> mostrati;
    std::deque<Risposta> risposte;

    Risposta chiedi(const Avviso& avviso) override;

private:
    Diario* diario_;
};

class ProcessiFinti : public Processi {
public:
    explicit ProcessiFinti(Diario* diario = nullptr) : diario_(diario) {}
    std::map<std::string, int> inEsecuzione; ///< name and how many run
    std::vector<std::string> avviati;        ///< program and arguments, with blanks between

    int termina(const std::string& nome) override;
    void avvia(const std::filesystem::path& programma, const std::vector<std::string>& argomenti,
               StileFinestra stile) override;

private:
    Diario* diario_;
};

class AlimentazioneFinta : public Alimentazione {
public:
    int spegnimenti = 0, riavvii = 0;
    void spegni() override { ++spegnimenti; }
    void riavvia() override { ++riavvii; }
};

class SistemaFinto : public Sistema {
public:
    explicit SistemaFinto(Diario* diario = nullptr) : diario_(diario) {}
    bool precedente = false;
    bool risponde = false;
    std::string utente = "operatore";
    int bips = 0;
    std::vector<std::string> echi; ///< addresses asked

    bool istanzaPrecedente() override;
    bool eco(const std::string& indirizzo) override;
    std::string NomeUtente() override { return utente; }
    void bip() override { ++bips; }

private:
    Diario* diario_;
};

/// What UscitaFinta throws in the place of ending: no Guasto, so no trap of the logic catches it.
struct FineProcesso {
    int codice = 0;
};

class UscitaFinta : public Uscita {
public:
    explicit UscitaFinta(Diario* diario = nullptr) : diario_(diario) {}
    [[noreturn]] void termina(int codice) override;

private:
    Diario* diario_;
};

class DesktopFinto : public Desktop {
public:
    explicit DesktopFinto(Diario* diario = nullptr) : diario_(diario) {}
    bool capace = true; ///< false: no program for it on this machine

    void estendi() override;
    void apriImpostazioni(const std::filesystem::path& comandi) override;
    void apriTastiera(const std::filesystem::path& programma) override;

private:
    Diario* diario_;
};

class SchermiFinti : public Schermi {
public:
    std::vector<Schermo> schermi;
    [[nodiscard]] std::vector<Schermo> elenco() const override { return schermi; }
};

} // namespace lumigrafo
