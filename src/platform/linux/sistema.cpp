#include "platform/linux/sistema.h"

#include "platform/linux/eco.h"
#include "platform/utf8.h"

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <pwd.h>
#include <unistd.h>

namespace lumigrafo {

namespace {

constexpr std::size_t kCaratteriUtente = 99;

std::string nomeDiSistema() {
    std::array<char, 4096> memoria{};
    passwd voce{};
    passwd* trovata = nullptr;
    if (::getpwuid_r(::geteuid(), &voce, memoria.data(), memoria.size(), &trovata) == 0 && trovata)
        return trovata->pw_name;
    // A user whom no directory knows, as in a container.
    const char* nome = std::getenv("USER");
    return nome && *nome ? nome : std::to_string(::geteuid());
}

} // namespace

void campanella() {
    const auto terminale = apri("/dev/tty", O_WRONLY | O_NOCTTY | O_NONBLOCK);
    if (terminale.aperto()) [[maybe_unused]]
        const auto n = ::write(terminale.fd(), "\a", 1);
}

bool SistemaLinux::eco(const std::string& indirizzo) {
    return ecoDiUnSalto(indirizzo);
}

std::string SistemaLinux::NomeUtente() {
    const std::string nome = nomeDiSistema();
    std::size_t fine = 0;
    for (std::size_t i = 0; i < kCaratteriUtente && fine < nome.size(); ++i)
        (void)prossimoCarattere(nome, fine);
    return nome.substr(0, fine);
}

} // namespace lumigrafo
