#include "platform/linux/desktop.h"

#include "platform/guasto.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <sstream>

namespace lumigrafo {

namespace {

/// What the desktop environments call their display settings, with its arguments.
const std::array<std::vector<std::string>, 7> kImpostazioni{{
    {"gnome-control-center", "display"},
    {"systemsettings", "kcm_kscreen"},
    {"xfce4-display-settings"},
    {"mate-display-properties"},
    {"cinnamon-settings", "display"},
    {"lxrandr"},
    {"arandr"},
}};

/// On-screen keyboards, the preferred one first.
const std::array<std::vector<std::string>, 6> kTastiere{{
    {"onboard"},
    {"florence"},
    {"squeekboard"},
    {"wvkbd-mobintl"},
    {"matchbox-keyboard"},
    {"xvkbd"},
}};

/// One connected output and its place on the desktop, "1920x1080+0+0"; empty where it is off.
struct Collegato {
    std::string nome;
    std::string posto;
};

std::vector<Collegato> collegati(std::string_view elenco) {
    std::vector<Collegato> tutti;
    std::istringstream righe{std::string(elenco)};
    for (std::string riga; std::getline(righe, riga);) {
        std::istringstream parole(riga);
        std::string nome, stato, posto;
        parole >> nome >> stato >> posto;
        if (riga.empty() || riga.front() == ' ' || stato != "connected")
            continue;
        if (posto == "primary")
            parole >> posto;
        tutti.push_back({nome, posto.find('+') == std::string::npos ? "" : posto});
    }
    return tutti;
}

/// "+0+0" of "1920x1080+0+0".
std::string origine(const std::string& posto) {
    return posto.substr(std::min(posto.size(), posto.find('+')));
}

std::string uscitaDi(const char* comando) {
    const std::unique_ptr<FILE, int (*)(FILE*)> tubo(::popen(comando, "re"), ::pclose);
    std::string testo;
    char pezzo[1024];
    for (std::size_t n; tubo && (n = std::fread(pezzo, 1, sizeof pezzo, tubo.get())) > 0;)
        testo.append(pezzo, n);
    return testo;
}

} // namespace

std::vector<std::string> argomentiEstensione(std::string_view elenco) {
    const std::vector<Collegato> tutti = collegati(elenco);
    const auto daSpostare = [&tutti](std::size_t i) {
        return tutti[i].posto.empty() ||
               std::any_of(
                   tutti.begin(), tutti.begin() + static_cast<std::ptrdiff_t>(i),
                   [&](const Collegato& prima) { return origine(prima.posto) == origine(tutti[i].posto); });
    };
    std::vector<std::string> argomenti;
    for (std::size_t i = 1; i < tutti.size(); ++i)
        if (daSpostare(i)) {
            const std::vector<std::string> uno = {"--output", tutti[i].nome, "--auto", "--right-of",
                                                  tutti[i - 1].nome};
            argomenti.insert(argomenti.end(), uno.begin(), uno.end());
        }
    return argomenti;
}

void DesktopLinux::estendi() {
    const auto argomenti = argomentiEstensione(uscitaDi("xrandr --query 2>/dev/null"));
    if (!argomenti.empty())
        processi_.avvia("xrandr", argomenti, StileFinestra::Ridotta);
}

void DesktopLinux::avviaUno(std::span<const std::vector<std::string>> comandi) {
    for (const auto& comando : comandi)
        if (ignorandoGuasti([&] {
                processi_.avvia(comando.front(), {comando.begin() + 1, comando.end()},
                                StileFinestra::Normale);
            }))
            return;
    throw Guasto(guasti::kFileNonTrovato);
}

void DesktopLinux::apriImpostazioni(const std::filesystem::path&) {
    avviaUno(kImpostazioni);
}

void DesktopLinux::apriTastiera(const std::filesystem::path&) {
    avviaUno(kTastiere);
}

} // namespace lumigrafo
