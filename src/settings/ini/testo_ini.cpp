#include "settings/ini/testo_ini.h"

#include "platform/conversioni.h"

#include <algorithm>

namespace lumigrafo {

namespace {

using namespace std::string_view_literals;

constexpr auto kVuoti = " \t\r\v\f\x1A\0"sv; // 1A: the end-of-text mark of old editors
constexpr auto kMarca = "\xEF\xBB\xBF"sv;

std::string_view senzaVuoti(std::string_view t) {
    const auto primo = t.find_first_not_of(kVuoti);
    if (primo == t.npos)
        return {};
    return t.substr(primo, t.find_last_not_of(kVuoti) - primo + 1);
}

enum class Tipo { Sezione, Chiave, Altro };

/// One line, as offsets into the text.
struct Riga {
    Tipo tipo = Tipo::Altro;
    std::string_view nome;  ///< of the section or the key
    std::size_t valore = 0; ///< where a key's value begins
    std::size_t fine = 0;   ///< behind the last character before the line end
    std::size_t prossima = 0;

    [[nodiscard]] std::string_view aCapo(std::string_view testo) const {
        return testo.substr(fine, prossima - fine);
    }
};

Riga leggiRiga(std::string_view testo, std::size_t inizio) {
    Riga r;
    const auto lf = testo.find('\n', inizio);
    r.prossima = lf == testo.npos ? testo.size() : lf + 1;
    r.fine = lf == testo.npos ? testo.size() : lf;
    if (lf != testo.npos && r.fine > inizio && testo[r.fine - 1] == '\r')
        --r.fine;
    auto riga = testo.substr(inizio, r.fine - inizio);
    if (inizio == 0 && riga.starts_with(kMarca))
        riga.remove_prefix(kMarca.size());
    const auto contenuto = senzaVuoti(riga);
    if (contenuto.starts_with('[')) {
        if (const auto chiusa = contenuto.find(']'); chiusa != contenuto.npos) {
            r.tipo = Tipo::Sezione;
            r.nome = senzaVuoti(contenuto.substr(1, chiusa - 1));
        }
    } else if (const auto uguale = contenuto.find('='); uguale != contenuto.npos && contenuto[0] != ';') {
        r.tipo = Tipo::Chiave;
        r.nome = senzaVuoti(contenuto.substr(0, uguale));
        const auto dopo = static_cast<std::size_t>(contenuto.data() + uguale + 1 - testo.data());
        r.valore = std::min(testo.find_first_not_of(" \t", dopo), r.fine);
    }
    return r;
}

struct Posto {
    std::optional<Riga> chiave; ///< the key itself
    std::optional<Riga> ultima; ///< else the last key of its section, or the section's own line
};

Posto cerca(std::string_view testo, std::string_view sezione, std::string_view chiave) {
    Posto posto;
    for (std::size_t i = 0; i < testo.size();) {
        const Riga r = leggiRiga(testo, i);
        i = r.prossima;
        if (r.tipo == Tipo::Sezione) {
            if (posto.ultima)
                break;
            if (ugualeSenzaMaiuscole(r.nome, sezione))
                posto.ultima = r;
        } else if (r.tipo == Tipo::Chiave && posto.ultima) {
            if (ugualeSenzaMaiuscole(r.nome, chiave)) {
                posto.chiave = r;
                break;
            }
            posto.ultima = r;
        }
    }
    return posto;
}

/// What a reader makes of the text behind the equals sign: up to the first zero byte, without blanks, and
/// then without one pair of matching quotes.
std::string_view letto(std::string_view grezzo) {
    auto v = senzaVuoti(grezzo.substr(0, grezzo.find('\0')));
    if (v.size() >= 2 && v.front() == v.back() && (v.front() == '"' || v.front() == '\''))
        v = v.substr(1, v.size() - 2);
    return v;
}

/// What stands behind the equals sign so that a reader gets the value. A value that would lose its own quotes
/// or a tab at its end is put in quotes: the reader takes off just one pair, so it comes back as it was
/// given.
std::string daScrivere(std::string_view valore) {
    // A line holds one line: the rest of a longer text would be read as keys.
    const auto riga = valore.substr(0, valore.find_first_of("\r\n\0"sv));
    if (letto(riga) == riga)
        return std::string(riga);
    return '"' + std::string(riga) + '"';
}

/// The line end for a line behind `vicina`: its own, else that of the first line.
std::string_view aCapoPer(std::string_view testo, const Riga& vicina) {
    if (const auto a = vicina.aCapo(testo); !a.empty())
        return a;
    const auto primo = leggiRiga(testo, 0).aCapo(testo);
    return primo.empty() ? "\r\n"sv : primo;
}

Riga ultimaRiga(std::string_view testo) {
    Riga r;
    for (std::size_t i = 0; i < testo.size(); i = r.prossima)
        r = leggiRiga(testo, i);
    return r;
}

} // namespace

std::optional<std::string> valoreIni(std::string_view testo, std::string_view sezione,
                                     std::string_view chiave) {
    const auto posto = cerca(testo, sezione, chiave);
    if (!posto.chiave)
        return std::nullopt;
    return std::string(letto(testo.substr(posto.chiave->valore, posto.chiave->fine - posto.chiave->valore)));
}

std::string conValoreIni(std::string_view testo, std::string_view sezione, std::string_view chiave,
                         std::string_view valore) {
    const auto posto = cerca(testo, sezione, chiave);
    std::string nuovo(testo);
    if (posto.chiave) {
        const auto& r = *posto.chiave;
        return nuovo.replace(r.valore, r.fine - r.valore, daScrivere(valore));
    }
    const Riga vicina = posto.ultima ? *posto.ultima : ultimaRiga(testo);
    const std::string aCapo(aCapoPer(testo, vicina));
    const bool aperta = !testo.empty() && vicina.fine == vicina.prossima;
    std::string aggiunta = aperta ? aCapo : "";
    if (!posto.ultima)
        aggiunta += '[' + std::string(sezione) + ']' + aCapo;
    aggiunta += std::string(chiave) + '=' + daScrivere(valore) + aCapo;
    return nuovo.insert(vicina.prossima, aggiunta);
}

bool nomiScrivibili(std::string_view sezione, std::string_view chiave) {
    const auto intero = [](std::string_view nome) {
        return !nome.empty() && senzaVuoti(nome) == nome && nome.find_first_of("\r\n\0"sv) == nome.npos;
    };
    return intero(sezione) && sezione.find(']') == sezione.npos && intero(chiave) &&
           chiave.find('=') == chiave.npos && chiave.front() != ';' && chiave.front() != '[';
}

} // namespace lumigrafo
