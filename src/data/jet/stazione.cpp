#include "data/jet/stazione.h"

#include "data/errori_dao.h"

#include <algorithm>
#include <array>

namespace lumigrafo::jet {

namespace {

constexpr std::uint64_t kUtenti = 0x10000000, kPagine = 0x20000000, kTabelleLette = 0x40000000,
                        kTabelleScritte = 0x50000000, kTabelleNonDaScrivere = 0x60000000;
/// Ours alone, and where the 32-bit places of Access stations never come.
constexpr FileCondiviso::Intervallo kPrecedenza{0x100000000, 1};
constexpr std::uint64_t kPasso = 0x200, kPosti = 0x100;
constexpr std::size_t kVoce = 64, kNome = 32;

FileCondiviso::Intervallo postoUtente(unsigned utente) {
    return {kUtenti + utente, 1};
}

FileCondiviso apriFile(const std::filesystem::path& archivio) {
    std::error_code ec; // beside the file itself, whatever links lead to it
    auto file = std::filesystem::canonical(archivio, ec);
    if (ec)
        file = archivio;
    file.replace_extension(".ldb");
    try {
        return {file, FileCondiviso::Modo::CreaSeManca};
    } catch (const Guasto&) {
        throw Guasto(dao::kBlocchi,
                     "Impossibile creare o scrivere '" + file.string() +
                         "', che le stazioni si dividono: servono i diritti di scrittura sulla "
                         "cartella dell'archivio e su quel file.");
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
    // The lock makes the station: without room for its name it works all the same.
    ignorandoGuasti([&] { file_.scrivi((utente - 1) * kVoce, voce); });
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
    return {kPagine + kPasso * pagina + 1, kPosti + utente_};
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

bool Stazione::chiediPrecedenza() {
    precede_ = precede_ || file_.blocca(kPrecedenza, true) == FileCondiviso::Esito::Preso;
    return precede_;
}

void Stazione::rendiPrecedenza() {
    if (precede_)
        file_.sblocca(kPrecedenza);
    precede_ = false;
}

bool Stazione::precedeUnAltra() const {
    return !precede_ && file_.bloccoAltrui(kPrecedenza, true).has_value();
}

void Stazione::sbloccaDa(std::size_t quante) {
    for (; ordine_.size() > quante; ordine_.pop_back()) {
        bloccate_.erase(ordine_.back());
        file_.sblocca(scrittura(ordine_.back()));
    }
}

/// The user number is told from where the lock ends. Some file systems (SMB) only say that a range is taken
/// and not what lock takes it, so its bytes are tried one by one. `inizio`: of the page's or table's range.
unsigned Stazione::chiBlocca(std::uint64_t inizio, bool ancheCondiviso) const {
    const auto preso = [&](std::uint64_t posto) {
        return file_.bloccoAltrui({inizio + posto, 1}, true).has_value();
    };
    unsigned utente = 0;
    for (unsigned passo = (kMassimo + 1) / 2; passo > 0; passo /= 2)
        if (preso(kPosti + utente + passo))
            utente += passo;
    // A shared lock is one byte at its holder's place.
    for (unsigned u = 1; ancheCondiviso && utente == 0 && u <= kMassimo; ++u)
        if (preso(u))
            utente = u;
    return utente;
}

unsigned Stazione::titolare(std::uint32_t pagina) const {
    return chiBlocca(kPagine + kPasso * pagina, true);
}

bool Stazione::apriTabella(std::uint32_t tabella, bool scrive) {
    const std::uint64_t inizio = kPasso * tabella;
    const auto segna = [&](std::unordered_set<std::uint32_t>& segnate, std::uint64_t genere) {
        if (segnate.contains(tabella))
            return true;
        if (file_.blocca({genere + inizio + utente_, 1}, false) != FileCondiviso::Esito::Preso)
            return false;
        segnate.insert(tabella);
        return true;
    };
    if (!segna(lette_, kTabelleLette) || (scrive && !segna(scritte_, kTabelleScritte)))
        return false;
    if (!scrive || !file_.bloccoAltrui({kTabelleNonDaScrivere + inizio + 1, kMassimo}, true))
        return true;
    scritte_.erase(tabella);
    file_.sblocca({kTabelleScritte + inizio + utente_, 1});
    return false;
}

std::string Stazione::titolareTabella(std::uint32_t tabella) const {
    const std::uint64_t inizio = kPasso * tabella;
    for (const std::uint64_t genere : {kTabelleLette, kTabelleScritte}) // many may share these
        if (const unsigned utente = chiBlocca(genere + inizio, false))
            return nomeDi(utente);
    return nomeDi(chiBlocca(kTabelleNonDaScrivere + inizio, true));
}

std::string Stazione::nomeDi(unsigned utente) const {
    if (utente == 0)
        return {};
    std::array<std::uint8_t, kNome> nome{};
    (void)file_.leggi((utente - 1) * kVoce, nome);
    return {nome.begin(), std::find(nome.begin(), nome.end(), 0)};
}

} // namespace lumigrafo::jet
