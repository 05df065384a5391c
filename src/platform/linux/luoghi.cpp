#include "platform/linux/luoghi.h"

#include "platform/file.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <sstream>

namespace lumigrafo {

namespace {

constexpr std::array<std::string_view, 9> kTipiRete{"cifs", "smb3",  "smbfs",      "nfs",        "nfs4",
                                                    "9p",   "davfs", "fuse.sshfs", "fuse.davfs2"};
/// Where desktops put the disks that are plugged in, and administrators their own.
constexpr std::array<std::string_view, 3> kRadiciDischi{"/media/", "/mnt/", "/run/media/"};

/// A blank in a folder's name stands as "\040" in the table, as do tabs and backslashes by their numbers.
std::string inChiaro(const std::string& campo) {
    std::string chiaro;
    for (std::size_t i = 0; i < campo.size(); ++i) {
        const bool codice = campo[i] == '\\' && i + 3 < campo.size() &&
                            std::all_of(campo.begin() + static_cast<std::ptrdiff_t>(i) + 1,
                                        campo.begin() + static_cast<std::ptrdiff_t>(i) + 4,
                                        [](char c) { return c >= '0' && c <= '7'; });
        if (codice) {
            chiaro += static_cast<char>(std::stoi(campo.substr(i + 1, 3), nullptr, 8));
            i += 3;
        } else {
            chiaro += campo[i];
        }
    }
    return chiaro;
}

bool diRete(const std::string& tipo) {
    return std::find(kTipiRete.begin(), kTipiRete.end(), tipo) != kTipiRete.end();
}

bool disco(const std::string& cartella) {
    return std::any_of(kRadiciDischi.begin(), kRadiciDischi.end(),
                       [&](std::string_view radice) { return cartella.starts_with(radice); });
}

/// What the desktop's file manager opened for the user: each share is a folder here.
void aggiungiDelDesktop(std::vector<Luogo>& luoghi) {
    const char* sessione = std::getenv("XDG_RUNTIME_DIR");
    if (!sessione)
        return;
    std::error_code ec;
    for (std::filesystem::directory_iterator i(std::filesystem::path(sessione) / "gvfs", ec), fine;
         !ec && i != fine; i.increment(ec)) {
        const std::string nome = i->path().filename().string();
        const auto condivisa = nome.find("share=");
        luoghi.push_back({condivisa == nome.npos
                              ? nome
                              : nome.substr(condivisa + 6, nome.find(',', condivisa) - condivisa - 6),
                          i->path(), true});
    }
}

} // namespace

std::vector<Luogo> luoghiMontati(std::string_view tabella) {
    std::vector<Luogo> luoghi;
    std::istringstream righe{std::string(tabella)};
    for (std::string riga; std::getline(righe, riga);) {
        std::istringstream campi(riga);
        std::string dispositivo, cartella, tipo;
        campi >> dispositivo >> cartella >> tipo;
        cartella = inChiaro(cartella);
        if (const bool rete = diRete(tipo); rete || disco(cartella))
            luoghi.push_back({std::filesystem::path(cartella).filename().string(), cartella, rete});
    }
    std::stable_partition(luoghi.begin(), luoghi.end(), [](const Luogo& l) { return l.rete; });
    return luoghi;
}

std::vector<Luogo> LuoghiLinux::elenco() const {
    std::vector<Luogo> luoghi;
    aggiungiDelDesktop(luoghi);
    for (Luogo& montato : luoghiMontati(leggiFile("/proc/self/mounts").value_or("")))
        luoghi.push_back(std::move(montato));
    if (const char* casa = std::getenv("HOME"); casa && *casa)
        luoghi.push_back({"Cartella personale", casa});
    luoghi.push_back({"Computer", "/"});
    return luoghi;
}

} // namespace lumigrafo
