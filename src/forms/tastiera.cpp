#include "forms/tastiera.h"

#include <array>
#include <cmath>

namespace lumigrafo {

namespace {

using A = AzioneTasto;

constexpr Tasto speciale(AzioneTasto azione, double larghezza = 1) {
    return {{}, {}, azione, larghezza};
}

// clang-format off
constexpr std::array kCifre{Tasto{"1"}, Tasto{"2"}, Tasto{"3"}, Tasto{"4"}, Tasto{"5"}, Tasto{"6"}, Tasto{"7"},
                            Tasto{"8"}, Tasto{"9"}, Tasto{"0"}, Tasto{"'", "\""}, speciale(A::Cancella, 2)};
constexpr std::array kLettere1{Tasto{"q", "Q"}, Tasto{"w", "W"}, Tasto{"e", "E"}, Tasto{"r", "R"}, Tasto{"t", "T"},
                               Tasto{"y", "Y"}, Tasto{"u", "U"}, Tasto{"i", "I"}, Tasto{"o", "O"}, Tasto{"p", "P"},
                               Tasto{"è", "È"}, Tasto{"é", "É"}, Tasto{"ì", "Ì"}};
constexpr std::array kLettere2{Tasto{"a", "A"}, Tasto{"s", "S"}, Tasto{"d", "D"}, Tasto{"f", "F"}, Tasto{"g", "G"},
                               Tasto{"h", "H"}, Tasto{"j", "J"}, Tasto{"k", "K"}, Tasto{"l", "L"}, Tasto{"ò", "Ò"},
                               Tasto{"à", "À"}, speciale(A::Invio, 2)};
constexpr std::array kLettere3{speciale(A::Maiuscole, 2), Tasto{"z", "Z"}, Tasto{"x", "X"}, Tasto{"c", "C"},
                               Tasto{"v", "V"}, Tasto{"b", "B"}, Tasto{"n", "N"}, Tasto{"m", "M"}, Tasto{"ù", "Ù"},
                               Tasto{",", ";"}, Tasto{".", ":"}, Tasto{"-", "_"}};
constexpr std::array kBaseLettere{speciale(A::Simboli, 2), Tasto{" ", {}, A::Scrive, 6}, Tasto{"?", "!"},
                                  speciale(A::Sinistra), speciale(A::Su), speciale(A::Giu), speciale(A::Destra)};
constexpr std::array kSegni1{Tasto{"!"}, Tasto{"\""}, Tasto{"£"}, Tasto{"$"}, Tasto{"%"}, Tasto{"&"}, Tasto{"/"},
                             Tasto{"("}, Tasto{")"}, Tasto{"="}, Tasto{"?"}, Tasto{"^"}, Tasto{"€"}};
constexpr std::array kSegni2{Tasto{"@"}, Tasto{"#"}, Tasto{"+"}, Tasto{"*"}, Tasto{"°"}, Tasto{"§"}, Tasto{"<"},
                             Tasto{">"}, Tasto{"["}, Tasto{"]"}, Tasto{"_"}, speciale(A::Invio, 2)};
constexpr std::array kSegni3{Tasto{";"}, Tasto{":"}, Tasto{"."}, Tasto{","}, Tasto{"-"}, Tasto{"|"}, Tasto{"\\"},
                             Tasto{"{"}, Tasto{"}"}, Tasto{"~"}, Tasto{"`"}, Tasto{"«"}, Tasto{"»"}};
constexpr std::array kBaseSegni{speciale(A::Lettere, 2), Tasto{" ", {}, A::Scrive, 6}, Tasto{"?"},
                                speciale(A::Sinistra), speciale(A::Su), speciale(A::Giu), speciale(A::Destra)};
constexpr std::array kNumeri1{Tasto{"7"}, Tasto{"8"}, Tasto{"9"}, speciale(A::Cancella)};
constexpr std::array kNumeri2{Tasto{"4"}, Tasto{"5"}, Tasto{"6"}, Tasto{"-"}};
constexpr std::array kNumeri3{Tasto{"1"}, Tasto{"2"}, Tasto{"3"}, Tasto{"."}};
constexpr std::array kNumeri4{speciale(A::Sinistra), Tasto{"0"}, speciale(A::Destra), speciale(A::Invio)};
// clang-format on

constexpr std::array<RigaTasti, 5> kPaginaLettere{kCifre, kLettere1, kLettere2, kLettere3, kBaseLettere};
constexpr std::array<RigaTasti, 5> kPaginaSegni{kCifre, kSegni1, kSegni2, kSegni3, kBaseSegni};
constexpr std::array<RigaTasti, 4> kPaginaNumeri{kNumeri1, kNumeri2, kNumeri3, kNumeri4};

constexpr double larghezzaDi(RigaTasti riga) {
    double somma = 0;
    for (const Tasto& t : riga)
        somma += t.larghezza;
    return somma;
}

constexpr bool allineata(std::span<const RigaTasti> pagina) {
    for (const RigaTasti& riga : pagina)
        if (larghezzaDi(riga) != larghezzaDi(pagina.front()))
            return false;
    return true;
}
static_assert(allineata(kPaginaLettere) && allineata(kPaginaSegni) && allineata(kPaginaNumeri));

/// The edge of a share of a length, each rounded by itself so that neighbours stay neighbours.
int bordo(double quota, double totale, int lunghezza) {
    return static_cast<int>(std::lround(lunghezza * quota / totale));
}

} // namespace

Tastiera::Tastiera(Forma forma) {
    if (forma == Forma::Numerica)
        righe_ = kPaginaNumeri;
    else
        righe_ = kPaginaLettere;
}

std::string_view Tastiera::scritta(const Tasto& t) const {
    return maiuscole_ != StatoMaiuscole::No && !t.alto.empty() ? t.alto : t.basso;
}

std::optional<Battuta> Tastiera::premi(const Tasto& t) {
    switch (t.azione) {
    case A::Maiuscole:
        maiuscole_ = maiuscole_ == StatoMaiuscole::No    ? StatoMaiuscole::Una
                     : maiuscole_ == StatoMaiuscole::Una ? StatoMaiuscole::Fisse
                                                         : StatoMaiuscole::No;
        return std::nullopt;
    case A::Simboli:
        righe_ = kPaginaSegni;
        return std::nullopt;
    case A::Lettere:
        righe_ = kPaginaLettere;
        return std::nullopt;
    default:
        break;
    }
    const Battuta battuta{t.azione, scritta(t)};
    if (t.azione == A::Scrive && maiuscole_ == StatoMaiuscole::Una)
        maiuscole_ = StatoMaiuscole::No;
    return battuta;
}

std::vector<TastoPosto> Tastiera::disponi(int larghezza, int altezza, int spazio) const {
    std::vector<TastoPosto> posti;
    const auto righe = static_cast<double>(righe_.size());
    for (std::size_t r = 0; r < righe_.size(); ++r) {
        // One gap more than is seen: the last one of each row and column lies outside.
        const int sopra = bordo(static_cast<double>(r), righe, altezza + spazio);
        const int sotto = bordo(static_cast<double>(r) + 1, righe, altezza + spazio) - spazio;
        const double totale = larghezzaDi(righe_[r]);
        double quota = 0;
        for (const Tasto& t : righe_[r]) {
            const int sinistra = bordo(quota, totale, larghezza + spazio);
            quota += t.larghezza;
            const int destra = bordo(quota, totale, larghezza + spazio) - spazio;
            posti.push_back({&t, {sinistra, sopra, destra - sinistra, sotto - sopra}});
        }
    }
    return posti;
}

} // namespace lumigrafo
