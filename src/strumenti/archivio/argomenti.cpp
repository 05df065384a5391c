#include "strumenti/archivio/argomenti.h"

#include "platform/conversioni.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

namespace lumigrafo::archivio {

namespace {

constexpr int kCategorie = 10;
constexpr int kMassimoOrdini = 10000;
constexpr int kMassimoNumero = INT16_MAX;

/// Takes the words one by one.
class Parole {
public:
    explicit Parole(const std::vector<std::string>& parole) : parole_(parole) {}
    [[nodiscard]] bool finite() const { return i_ >= parole_.size(); }
    [[nodiscard]] const std::string& prossima() { return parole_[i_++]; }
    [[nodiscard]] const std::string& valoreDi(const std::string& opzione) {
        if (finite())
            throw ErroreDiUso("Manca il valore di " + opzione + ".");
        return prossima();
    }

private:
    const std::vector<std::string>& parole_;
    std::size_t i_ = 0;
};

int numeroFra(const std::string& testo, int minimo, int massimo, const std::string& cosa) {
    int n = 0;
    const auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), n);
    if (errore != std::errc() || fine != testo.data() + testo.size() || n < minimo || n > massimo)
        throw ErroreDiUso(cosa + " dev'essere un numero da " + std::to_string(minimo) + " a " +
                          std::to_string(massimo) + ", non '" + testo + "'.");
    return n;
}

void prendiCartella(std::string& cartella, const std::string& parola) {
    if (parola.starts_with("--"))
        throw ErroreDiUso("Opzione sconosciuta: " + parola + ".");
    if (!cartella.empty())
        throw ErroreDiUso("Una cartella sola: '" + parola + "' è di troppo.");
    if (parola.empty())
        throw ErroreDiUso("La cartella non può essere vuota.");
    cartella = parola;
}

void richiedeCartella(const std::string& cartella, const std::string& comando) {
    if (cartella.empty())
        throw ErroreDiUso("Manca la cartella: " + comando + " CARTELLA.");
}

/// The value of --formato.
bool leggiFormato(Parole& parole) {
    const std::string& formato = parole.valoreDi("--formato");
    if (formato != "sqlite" && formato != "access")
        throw ErroreDiUso("Formato sconosciuto: '" + formato + "'. I formati sono sqlite e access.");
    return formato == "access";
}

Crea leggiCrea(Parole& parole) {
    Crea c;
    while (!parole.finite()) {
        const std::string& p = parole.prossima();
        if (p == "--formato") {
            c.access = leggiFormato(parole);
        } else if (p == "--dimostrativo") {
            c.dimostrativo = numeroFra(parole.valoreDi(p), 1, kMassimoOrdini, "--dimostrativo");
        } else {
            prendiCartella(c.cartella, p);
        }
    }
    richiedeCartella(c.cartella, "crea");
    return c;
}

std::string leggiSigla(const std::string& testo) {
    const std::string sigla = maiuscolo(testo);
    const bool lettera = sigla.size() == 1 && sigla[0] >= 'A' && sigla[0] <= 'Z';
    if (!sigla.empty() && !lettera)
        throw ErroreDiUso("La sigla è una lettera dalla A alla Z, non '" + testo + "'.");
    return sigla;
}

/// "CODICE=PEZZI".
Voce leggiCategoria(const std::string& testo) {
    const auto uguale = testo.find('=');
    if (uguale == testo.npos)
        throw ErroreDiUso("Una categoria si indica con CODICE=PEZZI, non '" + testo + "'.");
    Voce v;
    v.categoria = numeroFra(testo.substr(0, uguale), 1, kCategorie, "Il codice della categoria");
    v.pezzi = numeroFra(testo.substr(uguale + 1), 1, kMassimoNumero, "Il numero di pezzi");
    return v;
}

AggiungiOrdine leggiOrdine(Parole& parole) {
    AggiungiOrdine a;
    Ordine& o = a.ordine;
    while (!parole.finite()) {
        const std::string& p = parole.prossima();
        if (p == "--sigla") {
            o.sigla = leggiSigla(parole.valoreDi(p));
        } else if (p == "--numero") {
            o.numero = numeroFra(parole.valoreDi(p), 1, kMassimoNumero, "--numero");
        } else if (p == "--categoria") {
            const Voce v = leggiCategoria(parole.valoreDi(p));
            if (std::any_of(o.voci.begin(), o.voci.end(),
                            [&](const Voce& x) { return x.categoria == v.categoria; }))
                throw ErroreDiUso("La categoria " + std::to_string(v.categoria) + " è indicata due volte.");
            o.voci.push_back(v);
        } else if (p == "--evidenzia") {
            o.evidenzia = true;
        } else {
            prendiCartella(a.cartella, p);
        }
    }
    richiedeCartella(a.cartella, "ordine");
    if (o.numero == 0)
        throw ErroreDiUso("Manca --numero.");
    if (o.voci.empty())
        throw ErroreDiUso("Manca --categoria: un ordine ha almeno una categoria.");
    return a;
}

Converti leggiConverti(Parole& parole) {
    Converti c;
    bool formato = false;
    while (!parole.finite()) {
        const std::string& p = parole.prossima();
        if (p == "--formato") {
            c.access = leggiFormato(parole);
            formato = true;
        } else {
            prendiCartella(c.da.empty() ? c.da : c.a, p);
        }
    }
    if (c.da.empty() || c.a.empty() || !formato)
        throw ErroreDiUso("La chiamata è: converti CARTELLA CARTELLA-NUOVA --formato sqlite|access.");
    return c;
}

/// A command that takes the folder and nothing else.
template <typename Comando>
Comando leggiCartella(Parole& parole, const std::string& nome) {
    Comando c;
    while (!parole.finite())
        prendiCartella(c.cartella, parole.prossima());
    richiedeCartella(c.cartella, nome);
    return c;
}

} // namespace

Comando leggiArgomenti(const std::vector<std::string>& argomenti) {
    const auto chiede = [&](const char* opzione) {
        return std::find(argomenti.begin(), argomenti.end(), opzione) != argomenti.end();
    };
    if (chiede("--help"))
        return Aiuto{};
    if (chiede("--version"))
        return Versione{};
    Parole parole(argomenti);
    if (parole.finite())
        throw ErroreDiUso("Manca il comando.");
    const std::string& comando = parole.prossima();
    if (comando == "crea")
        return leggiCrea(parole);
    if (comando == "ordine")
        return leggiOrdine(parole);
    if (comando == "mostra")
        return leggiCartella<Mostra>(parole, comando);
    if (comando == "verifica")
        return leggiCartella<Verifica>(parole, comando);
    if (comando == "ripara")
        return leggiCartella<Ripara>(parole, comando);
    if (comando == "converti")
        return leggiConverti(parole);
    throw ErroreDiUso("Comando sconosciuto: '" + comando + "'.");
}

} // namespace lumigrafo::archivio
