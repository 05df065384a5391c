#include "data/jet/pagine.h"

#include "data/errori_dao.h"

#include <algorithm>
#include <utility>

namespace lumigrafo::jet {

namespace {

/// Pages kept in memory at most: 128 MB. Beyond them the cache begins anew.
constexpr std::size_t kCacheMassima = 32768;

/// `altra`: the computer that stands in the way, empty where it can't be told.
Guasto negato(int numero, const char* perche, const std::string& altra) {
    return {numero, std::string(numero == kOccupata ? "Impossibile aggiornare; " : "Impossibile leggere; ") +
                        perche + " da " + (altra.empty() ? "un'altra stazione." : "'" + altra + "'.")};
}

FileCondiviso apriFile(const std::filesystem::path& file, Pagine::Apertura& apertura) {
    if (!apertura.sola_lettura) {
        try {
            return {file, FileCondiviso::Modo::Scrittura};
        } catch (const Guasto& guasto) {
            if (guasto.numero() != guasti::kAccesso)
                throw;
            apertura.sola_lettura = true;
        }
    }
    return {file, FileCondiviso::Modo::Lettura};
}

} // namespace

Pagine::Pagine(const std::filesystem::path& file, Apertura apertura)
    : apertura_(std::move(apertura)), attesa_(apertura_.attesa), file_(apriFile(file, apertura_)) {
    const std::uint64_t lunghezza = file_.lunghezza();
    if (lunghezza < 3 * kPagina)
        throw nonLetto("Il file è troppo corto per un archivio di Access.");
    intestazione_ = leggiIntestazione(*dalFile(kPaginaIntestazione));
    if (lunghezza % kPagina != 0 && !apertura_.anche_tronco)
        throw danno(static_cast<std::uint32_t>(lunghezza / kPagina), "l'ultima pagina è tronca");
    svuota();
    if (apertura_.sola_lettura || apertura_.da_soli)
        return;
    Parole ora;
    leggiParole(ora);
    stazione_ = std::make_unique<Stazione>(file, apertura_.computer, [&](unsigned u) {
        // A number whose last station died while it wrote keeps telling so until the archive is mended.
        return ora.di(u) != Parole::kScrive && ora.di(u) != Parole::kDanno;
    });
    precedenza_.di(stazione_.get());
}

std::shared_ptr<Pagina> Pagine::dalFile(std::uint32_t numero) const {
    auto pagina = std::make_shared<Pagina>();
    if (file_.leggi(std::uint64_t{numero} * kPagina, pagina->byte) != kPagina)
        throw danno(numero, "oltre la fine del file");
    return pagina;
}

PaginaLetta Pagine::leggi(std::uint32_t numero) {
    if (!cambiate_.empty())
        if (const auto mia = cambiate_.find(numero); mia != cambiate_.end())
            return mia->second.pagina;
    if (numero >= nelFile_)
        throw danno(numero, "oltre la fine del file");
    if (numero >= cache_.size())
        cache_.resize(std::min<std::size_t>(nelFile_, std::size_t{numero} + 1024));
    PaginaLetta& pagina = cache_[numero];
    if (!pagina)
        pagina = dalFile(numero);
    return pagina;
}

PaginaLetta Pagine::leggi(std::uint32_t numero, TipoPagina tipo) {
    PaginaLetta pagina = leggi(numero);
    if (pagina->tipo() != tipo)
        throw danno(numero, "non è del tipo atteso");
    return pagina;
}

void Pagine::svuota() {
    cache_.clear();
    nelFile_ = static_cast<std::uint32_t>(std::min<std::uint64_t>(file_.lunghezza() / kPagina, 0xFFFFFF));
    quante_ = std::max(nelFile_, cambiate_.empty() ? 0 : cambiate_.rbegin()->first + 1);
}

void Pagine::leggiParole(Parole& parole) const {
    if (file_.leggi(kParoleCommit, parole.byte) != kByteParole)
        throw danno(kPaginaIntestazione, "il file è tronco");
}

unsigned Pagine::chiScrive(const Parole& parole) const {
    for (unsigned u = 1; u <= Stazione::kMassimo && !apertura_.da_soli; ++u)
        if (parole.di(u) == Parole::kScrive && u != utente() && (!stazione_ || stazione_->presente(u)))
            return u;
    return 0;
}

void Pagine::lasciaPrecedere() {
    if (quanteBloccate() == 0) // what is locked may be what the other one waits for
        precedenza_.lascia(apertura_.attesa);
}

Guasto Pagine::occupato(int numero, unsigned utente) const {
    return negato(numero, "attualmente bloccato", utente == 0 ? "" : stazione_->nomeDi(utente));
}

std::int64_t Pagine::aggiorna(int seOccupato) {
    const Precedenza::Turno turno(precedenza_);
    // Who only reads can't tell a station that writes from one that died at it: no commit takes so long.
    constexpr std::chrono::milliseconds kCommitMassimo{300};
    if (!file_.alSuoPosto() || (stazione_ && !stazione_->valida()))
        throw Guasto(dao::kDisco, "L'archivio, o il suo file dei blocchi, è stato spostato o sostituito "
                                  "mentre era in uso: va riaperto.");
    Parole ora;
    leggiParole(ora);
    for (Pazienza pazienza(stazione_ ? apertura_.attesa : std::min(apertura_.attesa, kCommitMassimo));
         ora != parole_;) {
        const unsigned altra = chiScrive(ora);
        if (altra == 0 || (!pazienza.ancora() && !stazione_))
            break;
        if (!pazienza.ancora())
            throw occupato(seOccupato, altra);
        precedenza_.insisti(seOccupato != kOccupata);
        pazienza.attendi();
        leggiParole(ora);
    }
    if (ora != parole_ || cache_.size() > kCacheMassima) {
        parole_ = ora;
        svuota();
    }
    return parole_.impronta();
}

bool Pagine::immutata() const {
    Parole ora;
    leggiParole(ora);
    return ora == parole_;
}

void Pagine::usaTabella(std::uint32_t definizione, bool scrive) {
    if (!stazione_)
        return;
    for (Pazienza pazienza(attesa_); !stazione_->apriTabella(definizione, scrive); pazienza.attendi()) {
        if (!scrive && pazienza.ancora())
            continue;
        const std::string altra = stazione_->titolareTabella(definizione);
        throw negato(scrive ? kOccupata : dao::kBloccatoLettura, "la tabella è riservata", altra);
    }
}

bool Pagine::altreStazioni() const {
    for (unsigned u = 1; u <= Stazione::kMassimo; ++u)
        if (stazione_ && stazione_->presente(u))
            return true;
    return false;
}

bool Pagine::tagliaAvanzo() {
    const std::uint64_t lunghezza = file_.lunghezza(), avanzo = lunghezza % kPagina;
    if (avanzo == 0 || altreStazioni()) // another one may be writing just there
        return false;
    file_.tronca(lunghezza - avanzo);
    return true;
}

std::vector<unsigned> Pagine::sospette() const {
    Parole ora;
    leggiParole(ora);
    std::vector<unsigned> v;
    for (unsigned u = 0; u <= Stazione::kMassimo; ++u) {
        const bool morta = u != utente() && (u == 0 || !stazione_ || !stazione_->presente(u));
        if (ora.di(u) == Parole::kDanno || (ora.di(u) == Parole::kScrive && morta))
            v.push_back(u);
    }
    return v;
}

} // namespace lumigrafo::jet
