#include "data/jet/stazione.h"

#include "data/errori_dao.h"

#include <algorithm>
#include <array>

namespace lumigrafo::jet {

namespace {

constexpr std::uint64_t kUtenti = 0x10000000, kPagine = 0x20000000;
constexpr std::uint64_t kPassoPagina = 0x200, kPosti = 0x100;
constexpr std::size_t kVoce = 64, kNome = 32;

FileCondiviso::Intervallo postoUtente(unsigned utente) {
    return {kUtenti + utente, 1};
}

FileCondiviso apriFile(const std::filesystem::path& archivio) {
    auto file = archivio;
    file.replace_extension(".ldb");
    try {
        return {file, FileCondiviso::Modo::CreaSeManca};
    } catch (const Guasto&) {
        throw erroreDao(dao::kBlocchi, file.string());
    }
}

} // namespace

Stazione::Stazione(const std::filesystem::path& archivio) : file_(apriFile(archivio)) {}

bool Stazione::prendi(unsigned utente, const std::string& computer) {
    switch (file_.blocca(postoUtente(utente), true)) {
    case FileCondiviso::Esito::Occupato:
        return false;
    case FileCondiviso::Esito::NonPossibile:
        throw erroreDao(dao::kBlocchi, ".ldb");
    case FileCondiviso::Esito::Preso:
        break;
    }
    utente_ = utente;
    std::array<std::uint8_t, kVoce> voce{};
    std::copy_n(computer.begin(), std::min(computer.size(), kNome - 1), voce.begin());
    constexpr std::string_view kUtente = "Admin";
    std::copy(kUtente.begin(), kUtente.end(), voce.begin() + kNome);
    file_.scrivi((utente - 1) * kVoce, voce);
    return true;
}

void Stazione::tuttiPresi() {
    throw erroreDao(dao::kTroppiUtenti);
}

bool Stazione::presente(unsigned utente) const {
    return utente != utente_ && file_.bloccoAltrui(postoUtente(utente), true).has_value();
}

/// An exclusive lock covers the places of all users and, beyond them, as many bytes as tell its holder.
FileCondiviso::Intervallo Stazione::scrittura(std::uint32_t pagina) const {
    return {kPagine + kPassoPagina * pagina + 1, kPosti + utente_};
}

bool Stazione::blocca(std::uint32_t pagina) {
    if (bloccate_.contains(pagina))
        return true;
    if (file_.blocca(scrittura(pagina), true) != FileCondiviso::Esito::Preso)
        return false;
    bloccate_.insert(pagina);
    ordine_.push_back(pagina);
    return true;
}

void Stazione::sbloccaDa(std::size_t quante) {
    for (; ordine_.size() > quante; ordine_.pop_back()) {
        bloccate_.erase(ordine_.back());
        file_.sblocca(scrittura(ordine_.back()));
    }
}

/// The user number is told from where the lock ends. Some file systems (SMB) only say that a range is taken
/// and not what lock takes it, so its bytes are tried one by one.
unsigned Stazione::chiBlocca(std::uint32_t pagina) const {
    const auto preso = [&](std::uint64_t posto) {
        return file_.bloccoAltrui({kPagine + kPassoPagina * pagina + posto, 1}, true).has_value();
    };
    unsigned utente = 0;
    for (unsigned passo = (kMassimo + 1) / 2; passo > 0; passo /= 2)
        if (preso(kPosti + utente + passo))
            utente += passo;
    // A shared lock is one byte at its holder's place.
    for (unsigned u = 1; utente == 0 && u <= kMassimo; ++u)
        if (preso(u))
            utente = u;
    return utente;
}

std::string Stazione::titolare(std::uint32_t pagina) const {
    const unsigned utente = chiBlocca(pagina);
    if (utente == 0)
        return {};
    std::array<std::uint8_t, kNome> nome{};
    (void)file_.leggi((utente - 1) * kVoce, nome);
    return {nome.begin(), std::find(nome.begin(), nome.end(), 0)};
}

} // namespace lumigrafo::jet
