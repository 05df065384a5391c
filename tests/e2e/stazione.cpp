#include "tests/e2e/stazione.h"

#include "console/layout_frmGestione.h"
#include "tests/e2e/modello.h"

#include <algorithm>
#include <ctime>
#include <fstream>
#include <stdexcept>

namespace lumigrafo::prova {

using namespace std::chrono_literals;

namespace {

/// The business date of the program that starts now.
std::string oggi() {
    const std::time_t t = std::time(nullptr) - 5 * 3600;
    char testo[9];
    std::strftime(testo, sizeof testo, "%Y%m%d", std::localtime(&t));
    return testo;
}

const Descrizione& disegno(const std::string& nome) {
    for (const Descrizione& d : kLayout_frmGestione.controlli)
        if (d.nome == nome || std::string(d.nome) + "(" + std::to_string(d.indice) + ")" == nome)
            return d;
    throw std::runtime_error("no control " + nome);
}

/// In the window's own measures, whatever it lies in.
Rettangolo assoluto(const Descrizione& d) {
    Rettangolo r = d.rett;
    if (!d.padre.empty()) {
        const Rettangolo padre = assoluto(disegno(std::string(d.padre)));
        r.left = r.left + padre.left;
        r.top = r.top + padre.top;
    }
    return r;
}

/// Of the menu bar, about: cells and buttons are far larger than what it may be off.
int altezzaMenu(const RettangoloPixel& console) {
    constexpr double kMinima = 49;
    return static_cast<int>(kMinima *
                            std::max(1.0, std::min(console.larghezza / 1024.0, console.altezza / 768.0)));
}
constexpr int kAltezzaMinimaRiga = 48;

} // namespace

Stazione::Stazione(const Schermo& schermo) : schermo_(schermo) {
    archivio.dataCompetenza = oggi();
    std::ofstream(cartella.percorso() / ".sonoindebug");
    const FileIni ini(cartella.percorso() / kFileImpostazioni);
    impostaReparti(ini, 3);
    for (const auto& [chiave, pixel] : {std::pair{"Left", Schermo::kLarghezza},
                                        {"Top", 0},
                                        {"Width", Schermo::kLarghezza},
                                        {"Height", Schermo::kAltezza}})
        ini.ScriviIni(kSezioneForm, chiave, pixel * 15);
}

void Stazione::imposta(const char* chiave, const ValoreIni& valore) const {
    FileIni(cartella.percorso() / kFileImpostazioni).ScriviIni(kSezioneImpostazioni, chiave, valore);
}

Processo::Ambiente Stazione::ambiente() const {
    auto variabili = schermo_.ambiente();
    variabili.emplace_back("LUMIGRAFO_HOME", cartella.percorso().string());
    return variabili;
}

Processo& Stazione::avvia(const std::string& parola) {
    programma_.reset(); // the last one's end comes first
    std::vector<std::string> comando{LUMIGRAFO};
    if (!parola.empty())
        comando.push_back(parola);
    programma_ = std::make_unique<Processo>(comando, ambiente());
    return *programma_;
}

bool Stazione::accendi() {
    const pid_t pid = avvia().pid();
    return attendiChe(20s, [&] {
        for (const FinestraX& f : schermo_.finestre(pid, "[^a-zA-Z]*")) // the board shows no title
            if (f.posto.x >= Schermo::kLarghezza)
                tabellone = f;
        const auto trovate = schermo_.finestre(pid, "Lumigrafo");
        if (!trovate.empty())
            console = trovate.back();
        return !trovate.empty() && !tabellone.id.empty();
    });
}

RettangoloPixel Stazione::contenuto() const {
    RettangoloPixel r = console.posto;
    const int menu = altezzaMenu(r);
    r.y += menu;
    r.altezza -= menu;
    return r;
}

void Stazione::clic(int quadrante, int riga, int colonna) const {
    const RettangoloPixel dentro = contenuto();
    const Scala scala(kLayout_frmGestione, dentro.larghezza, dentro.altezza);
    const RettangoloPixel grid = scala.rettangolo(disegno("grid(" + std::to_string(quadrante) + ")").rett);
    const int alta = std::max(scala.altezza(Twip(800)), kAltezzaMinimaRiga);
    schermo_.tocca(dentro.x + grid.x + grid.larghezza * (2 * colonna + 1) / 6,
                   dentro.y + grid.y + alta * riga + alta / 2);
}

void Stazione::clic(const std::string& controllo) const {
    const RettangoloPixel dentro = contenuto();
    const RettangoloPixel r =
        Scala(kLayout_frmGestione, dentro.larghezza, dentro.altezza).rettangolo(assoluto(disegno(controllo)));
    schermo_.tocca(dentro.x + r.x + r.larghezza / 2, dentro.y + r.y + r.altezza / 2);
}

std::string Stazione::sulTabellone(int quadrante) const {
    return FileIni(cartella.percorso() / kFileVideata).LeggiIni(std::to_string(quadrante), "Numero3");
}

std::string Stazione::ultimoChiamato(int quadrante) const {
    return FileIni(cartella.percorso() / kFileUltimiChiamati)
        .LeggiIni(kSezioneUltimi, "Ultimo_" + std::to_string(quadrante) + "_0");
}

std::string Stazione::servito(const std::string& cella) {
    return archivio.leggi("SELECT Servito FROM ScontriniEmessi WHERE " + ordineDi(cella));
}

} // namespace lumigrafo::prova
