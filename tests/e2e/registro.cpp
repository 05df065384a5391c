#include "tests/e2e/registro.h"

#include "tests/e2e/modello.h"

#include <csignal>
#include <sstream>

namespace lumigrafo::prova {

using namespace std::chrono_literals;

namespace {

std::vector<std::string> campi(const std::string& riga, char fra) {
    std::vector<std::string> pezzi;
    std::istringstream da(riga);
    for (std::string pezzo; std::getline(da, pezzo, fra);)
        pezzi.push_back(pezzo);
    return pezzi;
}

} // namespace

Registro::Registro(const std::filesystem::path& archivio, const std::string& data, int casse,
                   int scrittureAlSecondo, unsigned seme) {
    for (int i = 0; i < casse; ++i) {
        casse_.emplace_back(std::vector<std::string>{
            CASSA_AGITATA, archivio.string(), data, std::to_string(scrittureAlSecondo / casse),
            std::to_string(seme + static_cast<unsigned>(i)), std::string(1, static_cast<char>('A' + 3 * i))});
    }
}

void Registro::aggiorna() {
    for (Processo& cassa : casse_)
        while (const auto riga = cassa.riga(0ms))
            annota(*riga);
}

bool Registro::attendi() {
    const auto riga = casse_.front().riga(10s);
    if (riga)
        annota(*riga);
    aggiorna();
    return riga.has_value();
}

bool Registro::ferma() {
    fine_ = std::chrono::steady_clock::now();
    for (const Processo& cassa : casse_)
        cassa.segnala(SIGTERM);
    bool bene = true;
    for (Processo& cassa : casse_) {
        for (const std::string& riga : campi(cassa.resto(), '\n'))
            annota(riga);
        bene = cassa.fine(10s) == 0 && bene;
    }
    return bene;
}

void Registro::annota(const std::string& riga) {
    const auto parole = campi(riga, '|');
    const bool inizia = parole.at(0) == "inizia";
    scritture_ += parole[0] == "fatto";
    Ordine& ordine = ordini_[parole.at(2) + "  " + parole.at(3)];
    const Fase fase = inizia ? Fase::Iniziato : Fase::Fatto;
    if (parole[1] == "nuovo")
        ordine.nuovo = fase;
    if (parole[1] == "annulla")
        ordine.annullo = fase;
    // A change that came too late wrote nothing; one that is only begun may be read already.
    if (parole.size() > 4 && parole[0] == "fatto")
        for (const std::string& voce : campi(parole[4], ','))
            ordine.pezzi[voce[0] - '0'] = voce.substr(2);
    else if (parole[1] == "nuovo")
        for (const std::string& voce : campi(parole[4], ','))
            ordine.pezzi.try_emplace(voce[0] - '0');
}

void Registro::chiama(int quadrante, const std::string& cella) {
    aggiorna();
    Ordine& ordine = ordini_[cella];
    ordine.chiamate[quadrante].annulloPrima = ordine.annullo;
}

void Registro::chiamato(int quadrante, const std::string& cella) {
    aggiorna();
    Ordine& ordine = ordini_[cella];
    ordine.chiamate[quadrante].annulloDopo = ordine.annullo;
    ++chiamate_;
}

bool Registro::ripristina(int quadrante, const std::string& cella) {
    aggiorna();
    Ordine& ordine = ordini_[cella];
    if (ordine.annullo != Fase::No || ordine.chiamate.erase(quadrante) == 0)
        return false;
    ordine.ripristinato = true;
    ordine.pezzi[quadrante + 1] = "0";
    return true;
}

bool Registro::annullato(const std::string& cella) const {
    const auto ordine = ordini_.find(cella);
    return ordine != ordini_.end() && ordine->second.annullo != Fase::No;
}

Registro::Prima Registro::primaDiRicostruire() {
    aggiorna();
    Prima prima;
    for (const auto& [cella, ordine] : ordini_)
        for (const auto& [categoria, pezzi] : ordine.pezzi) {
            const int q = categoria - 1;
            if ((ordine.annullo == Fase::Fatto && !ordine.ripristinato) || ordine.chiamate.contains(q))
                prima.mancano[q].insert(cella);
            else if (ordine.nuovo == Fase::Fatto)
                prima.devono[q].insert(cella);
        }
    return prima;
}

std::string Registro::controllaGriglia(const Prima& prima, int q, const std::vector<std::string>& celle) {
    aggiorna();
    std::string guasti;
    std::set<std::string> mostrati;
    for (const std::string& cella : celle) {
        if (cella.empty())
            continue;
        if (!mostrati.insert(cella).second)
            guasti += cella + " twice; ";
        const auto ordine = ordini_.find(cella);
        if (ordine == ordini_.end() || !ordine->second.pezzi.contains(q + 1))
            guasti += cella + " never ordered there; ";
        else if (prima.mancano[q].contains(cella))
            guasti += cella + " should be gone; ";
    }
    for (const std::string& cella : prima.devono[q])
        if (!mostrati.contains(cella) && ordini_[cella].annullo == Fase::No)
            guasti += cella + " missing; ";
    return guasti;
}

std::string Registro::controllaArchivio(ArchivioProva& archivio) const {
    std::string guasti;
    for (const auto& [cella, ordine] : ordini_)
        if (const std::string g = controllaOrdine(archivio, cella, ordine); !g.empty())
            guasti += cella + ": " + g + "\n";
    return guasti + archivio.discordanze();
}

std::string Registro::controllaOrdine(ArchivioProva& archivio, const std::string& cella,
                                      const Ordine& ordine) const {
    std::string guasti;
    bool servito = ordine.ripristinato, incerto = false;
    if (ordine.ripristinato && ordine.annullo != Fase::No)
        return {}; // whichever came last
    for (const auto& [q, chiamata] : ordine.chiamate) {
        servito |= chiamata.annulloDopo == Fase::No;
        incerto |= chiamata.annulloDopo != Fase::No && chiamata.annulloPrima != Fase::Fatto;
    }
    const std::string scontrino =
        archivio.leggi("SELECT Servito FROM ScontriniEmessi WHERE " + ordineDi(cella));
    if (servito && scontrino != "-1")
        guasti += "called, and its receipt isn't served; ";
    if (!servito && !incerto && scontrino != "0")
        guasti += "not called, and its receipt is served; ";
    const bool inCoda = archivio.leggi("SELECT count(*) FROM Lumigrafo WHERE " + ordineDi(cella)) == "1";
    const bool chiuso = ordine.chiamate.size() == ordine.pezzi.size();
    if (inCoda == (ordine.annullo == Fase::Fatto || chiuso))
        guasti += inCoda ? "still in the queue; " : "lost from the queue; ";
    for (const auto& [categoria, pezzi] : ordine.pezzi) {
        const bool chiamata = ordine.chiamate.contains(categoria - 1);
        const std::string c = std::to_string(categoria);
        const std::string attesi = chiamata ? "0|0" : "-1|" + pezzi;
        if (inCoda && archivio.leggi("SELECT Categoria" + c + ", ifnull(Pezzi" + c +
                                     ", 0) FROM Lumigrafo WHERE " + ordineDi(cella)) != attesi)
            guasti += "category " + c + " isn't " + attesi + "; ";
        const std::string riga = archivio.leggi("SELECT SERVITO FROM DettaglioLumigrafo WHERE " +
                                                ordineDi(cella) + " AND CATEGORIA = " + c);
        if (!incerto && ordine.annullo == Fase::No && riga != (chiamata ? "-1" : "0"))
            guasti += "the detail line of category " + c + " is " + riga + "; ";
    }
    return guasti;
}

int Registro::incerte() const {
    int quante = 0;
    for (const auto& [cella, ordine] : ordini_)
        for (const auto& [q, chiamata] : ordine.chiamate)
            quante += chiamata.annulloDopo != Fase::No && chiamata.annulloPrima != Fase::Fatto;
    return quante;
}

double Registro::scrittureAlSecondo() const {
    return scritture_ / std::chrono::duration<double>(fine_ - inizio_).count();
}

} // namespace lumigrafo::prova
