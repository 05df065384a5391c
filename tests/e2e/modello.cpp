#include "tests/e2e/modello.h"

#include "platform/file.h"

#include <algorithm>
#include <map>
#include <stdexcept>

namespace lumigrafo::prova {

namespace {

using Chiavi = std::map<std::string, std::string*>; ///< "section/key" and where its value goes

/// A missing file is empty: no number was called yet.
void leggiFileIntero(const std::filesystem::path& file, Chiavi chiavi) {
    std::string testo = leggiFile(file).value_or("");
    std::string sezione;
    while (!testo.empty()) {
        const auto capo = testo.find("\r\n");
        if (capo == std::string::npos)
            throw std::runtime_error(file.filename().string() + ": cut line: " + testo);
        const std::string riga = testo.substr(0, capo);
        testo.erase(0, capo + 2);
        if (riga.starts_with('[') && riga.ends_with(']')) {
            sezione = riga.substr(1, riga.size() - 2);
            continue;
        }
        const auto uguale = riga.find('=');
        const auto chiave = chiavi.find(sezione + "/" + riga.substr(0, uguale));
        if (uguale == std::string::npos || chiave == chiavi.end())
            throw std::runtime_error(file.filename().string() + ": line out of place: " + riga);
        *chiave->second = riga.substr(uguale + 1);
        chiavi.erase(chiave);
    }
}

} // namespace

std::string inMostra(const std::string& cella) {
    const auto spazi = cella.find("  ");
    return spazi == std::string::npos ? cella : cella.substr(0, spazi) + cella.substr(spazi + 1);
}

std::string ordineDi(const std::string& cella) {
    return "Sigla = '" + cella.substr(0, 1) + "' AND Numero = " + cella.substr(3);
}

void impostaReparti(const FileIni& impostazioni, int quanti) {
    for (int q = 0; q < quanti; ++q)
        impostazioni.ScriviIni(kSezioneImpostazioni, "Categoria" + std::to_string(q), q + 1);
}

StatoSalvato StatoSalvato::leggi(const std::filesystem::path& cartella) {
    StatoSalvato stato;
    Chiavi videata, ultimi;
    for (std::size_t q = 0; q < 3; ++q) {
        const std::string cifra = std::to_string(q);
        for (std::size_t n = 0; n < kPosti; ++n)
            videata[cifra + "/Numero" + std::to_string(n + 1)] = &stato.posti[q][n];
        for (std::size_t i = 0; i < kUltimi; ++i)
            ultimi["Impo/Ultimo_" + cifra + "_" + std::to_string(i)] = &stato.ultimi[q][i];
    }
    leggiFileIntero(cartella / "VideataLumigrafo.ini", std::move(videata));
    leggiFileIntero(cartella / "UltimiChiamati.ini", std::move(ultimi));
    return stato;
}

std::vector<StatoSalvato> StatoSalvato::durante(std::size_t q, const std::string& cella) const {
    StatoSalvato ora = *this;
    std::vector<StatoSalvato> stati{ora};
    const auto scrivi = [&](std::string& dove, const std::string& valore) {
        dove = valore;
        stati.push_back(ora);
    };
    for (std::size_t i = 0; i < kUltimi; ++i)
        scrivi(ora.ultimi[q][i], i == 0 ? cella : ultimi[q][i - 1]);
    const auto& p = posti[q];
    if (std::find(p.begin(), p.end(), inMostra(cella)) != p.end())
        return stati; // on show already: nothing moves
    const std::array<std::string, kPosti> nuovi{p[1], p[2], inMostra(cella), p[0], p[3], p[4]};
    for (std::size_t n = 0; n < kPosti; ++n)
        scrivi(ora.posti[q][n], nuovi[n]);
    return stati;
}

std::string StatoSalvato::testo() const {
    std::string t;
    for (std::size_t q = 0; q < 3; ++q) {
        t += "board";
        for (const auto& posto : posti[q])
            t += " [" + posto + "]";
        t += " list";
        for (const auto& ultimo : ultimi[q])
            t += " [" + ultimo + "]";
        t += "\n";
    }
    return t;
}

} // namespace lumigrafo::prova
