#include "platform/linux/risolutore.h"

#include <algorithm>
#include <condition_variable>
#include <cstring>
#include <map>
#include <memory>
#include <mutex>
#include <netdb.h>
#include <optional>
#include <system_error>
#include <thread>

namespace lumigrafo {

namespace {

using Indirizzi = std::vector<IndirizzoRete>;

constexpr std::size_t kMassimoNome = 253; // no host name is longer
/// Of look-ups that hang at one time: more of them aren't started.
constexpr std::size_t kMassimeRicerche = 8;

/// Without the characters of an address or a name the system isn't asked at all.
bool plausibile(const std::string& host) {
    constexpr const char* kAmmessi = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz.-_:%";
    return !host.empty() && host.size() <= kMassimoNome && host.find_first_not_of(kAmmessi) == host.npos;
}

Indirizzi chiedi(const std::string& host, std::uint16_t porta, int modo) {
    addrinfo richiesta{};
    richiesta.ai_family = AF_UNSPEC;
    richiesta.ai_socktype = SOCK_STREAM;
    richiesta.ai_flags = modo | AI_NUMERICSERV;
    addrinfo* lista = nullptr;
    if (::getaddrinfo(host.c_str(), std::to_string(porta).c_str(), &richiesta, &lista) != 0)
        return {};
    const std::unique_ptr<addrinfo, decltype(&::freeaddrinfo)> tutti(lista, &::freeaddrinfo);
    Indirizzi trovati;
    for (const addrinfo* uno = lista; uno != nullptr; uno = uno->ai_next) {
        IndirizzoRete& nuovo = trovati.emplace_back();
        nuovo.lunghezza = std::min<socklen_t>(uno->ai_addrlen, sizeof nuovo.dati);
        std::memcpy(&nuovo.dati, uno->ai_addr, nuovo.lunghezza);
    }
    return trovati;
}

/// A look-up under way, shared with its thread.
struct Ricerca {
    std::mutex blocco;
    std::condition_variable finita;
    std::optional<Indirizzi> esito;
};

std::shared_ptr<Ricerca> avvia(const std::string& host, std::uint16_t porta) {
    auto ricerca = std::make_shared<Ricerca>();
    try {
        std::thread([ricerca, host, porta] {
            Indirizzi trovati = chiedi(host, porta, AI_ADDRCONFIG);
            const std::lock_guard tenuto(ricerca->blocco);
            ricerca->esito = std::move(trovati);
            ricerca->finita.notify_all();
        }).detach();
    } catch (const std::system_error&) {
        ricerca->esito.emplace(); // no thread left in the system: as a name without an answer
    }
    return ricerca;
}

/// The look-ups that had no answer in their caller's time.
using Sospese = std::map<std::pair<std::string, std::uint16_t>, std::shared_ptr<Ricerca>>;

void scordaFinite(Sospese& sospese) {
    std::erase_if(sospese, [](const auto& voce) {
        const std::lock_guard tenuto(voce.second->blocco);
        return voce.second->esito.has_value();
    });
}

} // namespace

std::vector<IndirizzoRete> risolvi(const std::string& host, std::uint16_t porta,
                                   std::chrono::steady_clock::time_point fine) {
    if (!plausibile(host))
        return {};
    if (Indirizzi numerici = chiedi(host, porta, AI_NUMERICHOST); !numerici.empty())
        return numerici;
    static Sospese sospese; // used by the one thread that connects
    const auto nome = std::pair(host, porta);
    auto dove = sospese.find(nome);
    if (dove == sospese.end()) {
        scordaFinite(sospese);
        if (sospese.size() >= kMassimeRicerche)
            return {};
        dove = sospese.emplace(nome, avvia(host, porta)).first;
    }
    const std::shared_ptr<Ricerca> ricerca = dove->second;
    std::unique_lock tenuto(ricerca->blocco);
    if (!ricerca->finita.wait_until(tenuto, fine, [&] { return ricerca->esito.has_value(); }))
        return {};
    sospese.erase(nome);
    return *ricerca->esito;
}

} // namespace lumigrafo
