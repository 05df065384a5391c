#include "tests/e2e/schermo.h"

#include <sstream>
#include <stdexcept>

namespace lumigrafo::prova {

using namespace std::chrono_literals;

namespace {

std::string monitor(int sinistra) {
    return std::to_string(Schermo::kLarghezza) + "/339x" + std::to_string(Schermo::kAltezza) + "/271+" +
           std::to_string(sinistra) + "+0";
}

} // namespace

bool Schermo::possibile() {
    for (const char* programma : {"Xvfb", "openbox", "xrandr", "xdotool", "xprop", "import", "identify"})
        if (esegui({"sh", "-c", std::string("command -v ") + programma}).first != 0)
            return false;
    return true;
}

Schermo::Schermo() {
    const std::string misura = std::to_string(2 * kLarghezza) + "x" + std::to_string(kAltezza) + "x24";
    xvfb_ = std::make_unique<Processo>(std::vector<std::string>{"Xvfb", "-displayfd", "1", "-screen", "0",
                                                                misura, "-noreset", "-nolisten", "tcp"});
    const auto numero = xvfb_->riga(20s);
    if (!numero)
        throw std::runtime_error("Xvfb doesn't start");
    display_ = ":" + *numero;
    (void)comanda({"xrandr", "--setmonitor", "*PRIMO", monitor(0), "screen"});
    (void)comanda({"xrandr", "--setmonitor", "SECONDO", monitor(kLarghezza), "none"});
    openbox_ = std::make_unique<Processo>(std::vector<std::string>{"openbox"}, ambiente());
    if (!attendiChe(20s, [this] {
            return comanda({"xprop", "-root", "_NET_SUPPORTING_WM_CHECK"}).second.find("window id") !=
                   std::string::npos;
        }))
        throw std::runtime_error("the window manager doesn't start");
}

std::pair<int, std::string> Schermo::comanda(const std::vector<std::string>& comando) const {
    return esegui(comando, ambiente());
}

std::vector<FinestraX> Schermo::finestre(pid_t pid, const std::string& titolo) const {
    std::vector<FinestraX> trovate;
    std::istringstream ids(comanda({"xdotool", "search", "--all", "--onlyvisible", "--pid",
                                    std::to_string(pid), "--name", "^" + titolo + "$"})
                               .second);
    for (std::string id; ids >> id;) {
        FinestraX f{id, {}};
        std::istringstream righe(comanda({"xdotool", "getwindowgeometry", "--shell", id}).second);
        for (std::string riga; std::getline(righe, riga);) {
            const auto valore = [&](const char* nome, int& dove) {
                if (riga.starts_with(std::string(nome) + "="))
                    dove = std::stoi(riga.substr(riga.find('=') + 1));
            };
            valore("X", f.posto.x);
            valore("Y", f.posto.y);
            valore("WIDTH", f.posto.larghezza);
            valore("HEIGHT", f.posto.altezza);
        }
        if (f.posto.larghezza > 1)
            trovate.push_back(f);
    }
    return trovate;
}

void Schermo::tocca(int x, int y) const {
    (void)comanda({"xdotool", "mousemove", std::to_string(x), std::to_string(y), "click", "1"});
}

void Schermo::digita(const std::string& testo) const {
    std::vector<std::string> comando{"xdotool", "key", "--delay", "4"};
    for (const char tasto : testo)
        comando.push_back(tasto == '\r' ? "Return" : tasto == '\x1b' ? "Escape" : std::string(1, tasto));
    (void)comanda(comando);
}

int Schermo::colori(const RettangoloPixel& p) const {
    const std::string ritaglio = std::to_string(p.larghezza) + "x" + std::to_string(p.altezza) + "+" +
                                 std::to_string(p.x) + "+" + std::to_string(p.y);
    const auto [codice, testo] = comanda(
        {"sh", "-c", "import -window root -crop " + ritaglio + " +repage png:- | identify -format %k -"});
    return codice == 0 ? std::stoi(testo) : 0;
}

} // namespace lumigrafo::prova
