// The half of Pagine that changes the archive.
#include "data/errori_dao.h"
#include "data/jet/pagina_dati.h"
#include "data/jet/pagine.h"

#include <algorithm>
#include <utility>

namespace lumigrafo::jet {

namespace {

/// Rows before indexes, children before parents, and then the maps: who dies in between leaves at worst pages
/// that nobody refers to.
int rango(const Pagina& pagina) {
    switch (pagina.tipo()) {
    case TipoPagina::Dati: // maps lie on such pages too, which are no table's own
        return pagina.u32(PaginaDati::kProprietario) <= kPaginaMappaGlobale ? 3 : 0;
    case TipoPagina::Foglia:
        return 1;
    case TipoPagina::Nodo:
        return 2;
    case TipoPagina::Definizione:
        return 4;
    default:
        return 3;
    }
}

} // namespace

void Pagine::sbloccaDa(std::size_t quante) noexcept {
    if (stazione_)
        stazione_->sbloccaDa(quante);
}

void Pagine::bloccaPagina(std::uint32_t numero) {
    if (solaLettura())
        throw erroreDao(dao::kSolaLettura);
    if (!stazione_ || stazione_->tiene(numero))
        return;
    if (!stazione_->blocca(numero))
        throw occupato(kOccupata, stazione_->titolare(numero));
    if (!immutata() || cambiataNelFile(numero)) // what was read of the page before it was locked may be old
        throw StatoVecchio{};
}

/// The commit words don't tell of every station what it wrote: the page itself does.
bool Pagine::cambiataNelFile(std::uint32_t numero) {
    if (numero >= nelFile_
            ? file_.lunghezza() <= std::uint64_t{numero} * kPagina
            : numero >= cache_.size() || !cache_[numero] || dalFile(numero)->byte == cache_[numero]->byte)
        return false;
    svuota();
    return true;
}

void Pagine::riserva(std::uint32_t numero) {
    cambia([&] {
        bloccaPagina(numero);
        return true;
    });
}

Pagina& Pagine::modifica(std::uint32_t numero) {
    bloccaPagina(numero);
    const PaginaLetta ora = leggi(numero);
    auto& [pagina, segnata] = cambiate_[numero];
    if (!segnati_.empty() && (!pagina || segnata < ultimoSegno_))
        annulli_.push_back({numero, {pagina, segnata}});
    // A page that a mark still refers to, or a reader, is left to them.
    if (!pagina || ora.use_count() > 2)
        pagina = std::make_shared<Pagina>(*ora);
    segnata = ultimoSegno_;
    return const_cast<Pagina&>(*pagina); // made above, and nobody else has it
}

std::uint32_t Pagine::aggiungi() {
    const std::uint32_t numero = quante_;
    if (numero >= kMassime)
        throw erroreDao(dao::kDiscoPieno);
    bloccaPagina(numero);
    annulli_.push_back({numero, {}});
    cambiate_[numero] = {std::make_shared<Pagina>(), ultimoSegno_};
    quante_ = numero + 1;
    return numero;
}

Pagine::Segno Pagine::segno() {
    segnati_.push_back(++ultimoSegno_);
    return {ultimoSegno_, annulli_.size(), quante_};
}

void Pagine::tornaA(const Segno& segno) {
    while (annulli_.size() > segno.annulli) {
        auto& [numero, prima] = annulli_.back();
        if (prima.pagina)
            cambiate_[numero] = std::move(prima);
        else
            cambiate_.erase(numero);
        annulli_.pop_back();
    }
    quante_ = std::max(nelFile_, segno.quante);
    std::erase_if(segnati_, [&](std::uint64_t s) { return s > segno.numero; });
}

void Pagine::dimentica(const Segno& segno) noexcept {
    std::erase_if(segnati_, [&](std::uint64_t s) { return s >= segno.numero; });
    // The mark below needs only what it has not kept itself: a page as it was before its first change since.
    const std::uint64_t sotto = segnati_.empty() ? UINT64_MAX : segnati_.back();
    const auto inutile = [&](const Annullo& a) {
        return segnati_.empty() || (a.prima.pagina && a.prima.segno >= sotto);
    };
    const auto da = annulli_.begin() + static_cast<std::ptrdiff_t>(std::min(segno.annulli, annulli_.size()));
    annulli_.erase(std::remove_if(da, annulli_.end(), inutile), annulli_.end());
}

void Pagine::dimenticaCambi() noexcept {
    cambiate_.clear();
    annulli_.clear();
    segnati_.clear();
}

void Pagine::scrivi(std::uint32_t numero, const Pagina& pagina) {
    file_.scrivi(std::uint64_t{numero} * kPagina, pagina.byte);
}

void Pagine::scriviParola(unsigned utente, std::uint16_t parola) {
    const std::uint8_t byte[] = {static_cast<std::uint8_t>(parola), static_cast<std::uint8_t>(parola >> 8)};
    file_.scrivi(kParoleCommit + 2 * utente, byte);
    file_.consolida();
}

void Pagine::assolvi(unsigned utente) {
    scriviParola(utente, Parole::kPrima);
}

std::vector<std::uint32_t> Pagine::ordineDiScrittura() const {
    std::vector<std::uint32_t> ordine;
    for (const auto& [numero, cambiata] : cambiate_)
        ordine.push_back(numero);
    std::stable_sort(ordine.begin(), ordine.end(), [this](std::uint32_t a, std::uint32_t b) {
        const bool nuovaA = a >= nelFile_, nuovaB = b >= nelFile_;
        if (nuovaA != nuovaB)
            return nuovaA; // the file grows before anything refers to its new end
        return !nuovaA && rango(*cambiate_.at(a).pagina) < rango(*cambiate_.at(b).pagina);
    });
    return ordine;
}

/// `rimesse`: after a failure, whether the file is again as it was.
void Pagine::scriviPagine(const std::vector<std::uint32_t>& ordine, bool& rimesse) {
    std::map<std::uint32_t, std::shared_ptr<Pagina>> vecchie;
    for (const std::uint32_t n : ordine)
        if (n < nelFile_)
            vecchie[n] = dalFile(n);
    try {
        for (const std::uint32_t n : ordine)
            scrivi(n, *cambiate_.at(n).pagina);
        file_.consolida();
    } catch (const Guasto&) {
        rimesse = ignorandoGuasti([&] {
            for (const auto& [n, pagina] : vecchie)
                scrivi(n, *pagina);
            if (quante_ > nelFile_)
                file_.tronca(std::uint64_t{nelFile_} * kPagina);
        });
        throw;
    }
}

void Pagine::registra() {
    if (cambiate_.empty())
        return abbandona();
    Parole prima;
    leggiParole(prima);
    const std::uint16_t parola = prima.di(utente());
    if (parola == Parole::kScrive)
        throw danno(kPaginaIntestazione, "una scrittura di questa stazione è rimasta a metà");
    bool rimesse = true;
    try {
        scriviParola(utente(), Parole::kScrive);
        scriviPagine(ordineDiScrittura(), rimesse);
    } catch (const Guasto&) {
        // Where not all was undone the word stays at "writing" and tells that the archive is suspect. The old
        // word never comes back: somebody may have read in between.
        if (rimesse)
            ignorandoGuasti([&] { scriviParola(utente(), Parole::successiva(parola)); });
        abbandona();
        throw;
    }
    scriviParola(utente(), Parole::successiva(parola));

    const auto nuove = std::exchange(cambiate_, {});
    Parole attese = parole_;
    attese.metti(utente(), Parole::successiva(parola));
    leggiParole(parole_);
    if (attese != parole_) { // another station committed too, elsewhere
        parole_ = attese;
        svuota();
    } else {
        nelFile_ = quante_;
    }
    cache_.resize(std::max<std::size_t>(cache_.size(), nelFile_));
    for (const auto& [numero, cambiata] : nuove)
        if (numero < cache_.size())
            cache_[numero] = cambiata.pagina;
    abbandona();
}

void Pagine::abbandona() noexcept {
    dimenticaCambi();
    quante_ = nelFile_;
    sbloccaDa(0);
}

} // namespace lumigrafo::jet
