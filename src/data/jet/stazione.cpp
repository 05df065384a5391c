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
    return true;
}

void Stazione::sblocca(std::uint32_t pagina) {
    if (bloccate_.erase(pagina) > 0)
        file_.sblocca(scrittura(pagina));
}

std::string Stazione::titolare(std::uint32_t pagina) const {
    const auto altrui = file_.bloccoAltrui(scrittura(pagina), true);
    if (!altrui)
        return {};
    const std::uint64_t ultimo = altrui->inizio + altrui->lunghezza - 1;
    const std::uint64_t inizio = kPagine + kPassoPagina * pagina;
    // A shared lock is one byte at its holder's place.
    const std::uint64_t utente = altrui->lunghezza == 1 ? ultimo - inizio : ultimo - inizio - kPosti;
    if (utente < 1 || utente > kMassimo)
        return {};
    std::array<std::uint8_t, kNome> nome{};
    (void)file_.leggi((utente - 1) * kVoce, nome);
    return {nome.begin(), std::find(nome.begin(), nome.end(), 0)};
}

} // namespace lumigrafo::jet
