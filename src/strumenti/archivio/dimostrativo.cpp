#include "strumenti/archivio/dimostrativo.h"

#include "strumenti/archivio/cassa.h"

#include <array>
#include <map>
#include <random>
#include <string_view>

namespace lumigrafo::archivio {

namespace {

struct Piatto {
    const char* nome;
    double prezzo;
};
struct Reparto {
    const char* nome;
    std::array<Piatto, 5> piatti;
};

// clang-format off
constexpr std::array<Reparto, 4> kReparti{{
    {"Bar", {{{"Acqua naturale", 1.5}, {"Birra alla spina", 4.5}, {"Vino rosso sfuso", 3.0}, {"Caffè", 1.2}, {"Crostata", 3.5}}}},
    {"Cucina", {{{"Tagliatelle ai funghi", 8.0}, {"Lasagne al ragù", 7.5}, {"Polenta e spezzatino", 9.0}, {"Insalata mista", 3.0}, {"Patatine fritte", 3.5}}}},
    {"Griglia", {{{"Costine di maiale", 9.0}, {"Salamella con pane", 5.0}, {"Spiedino di pollo", 7.5}, {"Bistecca di manzo", 14.0}, {"Verdure grigliate", 5.0}}}},
    {"Pizzeria", {{{"Margherita", 6.0}, {"Diavola", 7.5}, {"Quattro stagioni", 8.5}, {"Marinara", 5.0}, {"Vegetariana", 8.0}}}},
}};
// clang-format on

/// The same numbers on every machine; the standard's distributions aren't.
class Caso {
public:
    /// From 0 to `n` - 1.
    int sotto(int n) { return static_cast<int>(motore_() % static_cast<unsigned>(n)); }
    bool unoSu(int n) { return sotto(n) == 0; }

private:
    std::minstd_rand motore_{599};
};

Voce voce(Caso& caso, int reparto) {
    Voce v;
    v.categoria = reparto + 1;
    for (int righe = 1 + caso.sotto(2), r = 0; r < righe; ++r) {
        const auto& p =
            kReparti[static_cast<std::size_t>(reparto)].piatti[static_cast<std::size_t>(caso.sotto(5))];
        v.articoli.push_back({p.nome, 1 + caso.sotto(3), p.prezzo});
        v.pezzi += v.articoli.back().quantita;
    }
    return v;
}

/// One to three departments; of several, the first may be served already.
std::vector<Voce> voci(Caso& caso, int minuti) {
    constexpr int kReparto = static_cast<int>(kReparti.size());
    const int quanti = caso.unoSu(2) ? 1 : caso.unoSu(4) ? 3 : 2;
    std::vector<Voce> v;
    for (int primo = caso.sotto(kReparto), i = 0; i < quanti; ++i)
        v.push_back(voce(caso, (primo + i) % kReparto));
    if (quanti > 1 && caso.unoSu(4))
        v.front().minutiServito = minuti + 5 + caso.sotto(10);
    return v;
}

} // namespace

void scriviCategorie(Database& db) {
    const auto categorie = db.OpenRecordset("Categorie");
    for (std::size_t i = 0; i < kReparti.size(); ++i) {
        categorie->AddNew();
        categorie->Fields()["Codice"].Value(i + 1);
        categorie->Fields()["Descrizione"].Value(kReparti[i].nome);
        categorie->Update();
    }
}

void scriviOrdini(Database& db, int ordini, std::int32_t dataCompetenza) {
    constexpr std::string_view kCasse = "ABCDE ";
    constexpr int kApertura = 19 * 60, kMinutiServizio = 200; // 19:00 to 22:20
    Caso caso;
    Cassa cassa(db, dataCompetenza);
    std::map<char, int> numeri;
    for (int i = 0; i < ordini; ++i) {
        const char sigla = kCasse[static_cast<std::size_t>(caso.sotto(static_cast<int>(kCasse.size())))];
        Ordine o;
        o.sigla = sigla == ' ' ? "" : std::string(1, sigla);
        o.numero = ++numeri[sigla];
        o.voci = voci(caso, kApertura + kMinutiServizio * i / ordini);
        o.evidenzia = caso.unoSu(8);
        cassa.registra(o);
    }
}

} // namespace lumigrafo::archivio
