#include "platform/computer.h"

#include <array>
#include <unistd.h>

namespace lumigrafo {

std::string nomeComputer() {
    std::array<char, 256> nome{};
    const bool noto = ::gethostname(nome.data(), nome.size() - 1) == 0 && nome[0] != '\0';
    return noto ? nome.data() : "stazione";
}

} // namespace lumigrafo
