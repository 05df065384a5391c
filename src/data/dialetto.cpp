#include "data/dialetto.h"

#include "data/lessico.h"
#include "platform/conversioni.h"

#include <algorithm>
#include <initializer_list>

namespace lumigrafo {

namespace {

using lessico::Genere;
using lessico::Lettore;
using lessico::Pezzo;

/// A statement being put right: the pieces as read, and what is written for each.
struct Lavoro {
    explicit Lavoro(std::string_view sql) : pezzi(lessico::spezza(sql)), leggi(pezzi) {
        scritti.reserve(pezzi.size());
        for (const Pezzo& p : pezzi)
            scritti.emplace_back(p.testo);
    }

    void togli(std::size_t da, std::size_t quanti) {
        for (std::size_t i = da; i < da + quanti; ++i)
            scritto(i).clear();
    }
    std::string& scritto(std::size_t i) { return scritti[leggi.posto(i)]; }
    [[nodiscard]] std::string testo() const {
        std::string t;
        for (const std::string& s : scritti)
            t += s;
        return t;
    }

    const std::vector<Pezzo> pezzi;
    const Lettore leggi;
    std::vector<std::string> scritti;
};

void togliColonneDiDelete(Lavoro& l) {
    if (!l.leggi.e(0, "DELETE"))
        return;
    if (l.leggi.e(1, "*") && l.leggi.e(2, "FROM"))
        l.togli(1, 1);
    else if (l.leggi.nome(1) && l.leggi.e(2, ".") && l.leggi.e(3, "*") && l.leggi.e(4, "FROM"))
        l.togli(1, 3);
}

int livello(const Lettore& leggi, std::size_t i) {
    return leggi.e(i, "(") ? 1 : leggi.e(i, ")") ? -1 : 0;
}

void togliTabellaDaiBersagli(Lavoro& l) {
    if (!l.leggi.e(0, "UPDATE"))
        return;
    int profondita = 0;
    bool assegnazioni = false, bersaglio = false;
    for (std::size_t i = 1; i < l.leggi.quanti(); ++i) {
        profondita += livello(l.leggi, i);
        if (profondita != 0)
            continue;
        if (l.leggi.e(i, "WHERE"))
            return;
        if (!assegnazioni && l.leggi.e(i, "SET")) {
            assegnazioni = bersaglio = true;
        } else if (assegnazioni && l.leggi.e(i, ",")) {
            bersaglio = true;
        } else if (bersaglio) {
            if (l.leggi.nome(i) && l.leggi.e(i + 1, ".") && l.leggi.nome(i + 2) && l.leggi.e(i + 3, "="))
                l.togli(i, 2);
            bersaglio = false;
        }
    }
}

/// In brackets, for a minus sign may stand before it.
void scriviVeroEFalso(Lavoro& l) {
    for (std::size_t i = 0; i < l.leggi.quanti(); ++i) {
        const bool vero = l.leggi.e(i, "True");
        if (!vero && !l.leggi.e(i, "False"))
            continue;
        const bool nomeDiQualcosa = (i > 0 && l.leggi.e(i - 1, ".")) || l.leggi.e(i + 1, ".");
        if (!nomeDiQualcosa)
            l.scritto(i) = vero ? "(-1)" : "0";
    }
}

/// Only where values are compared or sorted: a result column or the target of an assignment keeps its bare
/// name.
void confrontaSenzaMaiuscole(Lavoro& l, const std::set<std::string>& colonne, bool dentroCondizione) {
    for (std::size_t i = 0; i < l.leggi.quanti() && !colonne.empty(); ++i) {
        if (l.leggi.e(i, "WHERE") || l.leggi.e(i, "BY") || l.leggi.e(i, "HAVING") || l.leggi.e(i, "ON"))
            dentroCondizione = true;
        else if (dentroCondizione && l.leggi.nome(i) && !l.leggi.e(i + 1, ".") && !l.leggi.e(i + 1, "(") &&
                 colonne.contains(minuscolo(lessico::nudo(l.leggi[i].testo))))
            l.scritto(i) += " COLLATE NOCASE";
    }
}

/// One entry of a simple selection: `*`, `T.*`, or a column with or without another name.
std::optional<std::string> colonnaDi(const Lettore& leggi, std::size_t da, std::size_t a) {
    if (leggi.nome(da) && leggi.e(da + 1, ".") && da + 2 < a)
        da += 2;
    if (leggi.e(da, "*") && da + 1 == a)
        return "*";
    if (da >= a || !leggi.nome(da))
        return std::nullopt;
    std::size_t fine = da + 1;
    if (fine < a && leggi.e(fine, "AS"))
        ++fine;
    if (fine < a && leggi.nome(fine))
        ++fine;
    return fine == a ? std::optional(lessico::nudo(leggi[da].testo)) : std::nullopt;
}

bool contiene(const Lettore& leggi, std::initializer_list<std::string_view> parole) {
    for (std::size_t i = 0; i < leggi.quanti(); ++i)
        for (const auto parola : parole)
            if (leggi.e(i, parola))
                return true;
    return false;
}

/// The text from one piece up to another, blanks as they stand.
std::string brano(const std::vector<Pezzo>& pezzi, const Lettore& leggi, std::size_t da, std::size_t a) {
    std::string t;
    const std::size_t fine = a < leggi.quanti() ? leggi.posto(a) : pezzi.size();
    for (std::size_t i = da < leggi.quanti() ? leggi.posto(da) : fine; i < fine; ++i)
        t += pezzi[i].testo;
    return t;
}

/// Reads the entries behind SELECT. Returns the place of FROM, or 0 where an entry is no plain column.
std::size_t leggiVoci(const Lettore& leggi, std::vector<std::string>& colonne) {
    std::size_t inizio = 1;
    for (std::size_t i = 1; i < leggi.quanti(); ++i) {
        const bool fine = leggi.e(i, "FROM");
        if (!fine && !leggi.e(i, ","))
            continue;
        auto colonna = colonnaDi(leggi, inizio, i);
        if (!colonna)
            return 0;
        colonne.push_back(std::move(*colonna));
        if (fine)
            return i;
        inizio = i + 1;
    }
    return 0;
}

bool dopoFrom(const Lettore& leggi, std::size_t i) {
    return i >= leggi.quanti() || leggi.e(i, "WHERE") || leggi.e(i, "ORDER") || leggi.e(i, "LIMIT") ||
           leggi.e(i, ";");
}

/// The place behind the one table of FROM and its other name, or 0 where there is more than one table.
std::size_t dopoTabella(const Lettore& leggi, std::size_t from) {
    std::size_t i = from + 1;
    if (!leggi.nome(i) && !leggi[i].testo.starts_with('"'))
        return 0;
    if (dopoFrom(leggi, ++i))
        return i;
    i += leggi.e(i, "AS") ? 1 : 0;
    return leggi.nome(i) && dopoFrom(leggi, i + 1) ? i + 1 : 0;
}

} // namespace

std::string Dialetto::istruzione(std::string_view sql) const {
    Lavoro l(sql);
    togliColonneDiDelete(l);
    togliTabellaDaiBersagli(l);
    scriviVeroEFalso(l);
    confrontaSenzaMaiuscole(l, conMaiuscole_, false);
    return l.testo();
}

std::string Dialetto::criterio(std::string_view condizione) const {
    Lavoro l(condizione);
    scriviVeroEFalso(l);
    confrontaSenzaMaiuscole(l, conMaiuscole_, true);
    return l.testo();
}

std::string Dialetto::sorgente(std::string_view tabellaOSql) const {
    const auto pezzi = lessico::spezza(tabellaOSql);
    if (Lettore(pezzi).e(0, "SELECT"))
        return istruzione(tabellaOSql);
    return "SELECT * FROM " + lessico::traVirgolette(lessico::nudo(trim(tabellaOSql)));
}

std::optional<Selezione> selezioneSemplice(std::string_view sql) {
    const auto pezzi = lessico::spezza(sql);
    const Lettore leggi(pezzi);
    if (!leggi.e(0, "SELECT") || contiene(leggi, {"DISTINCT", "DISTINCTROW", "TOP", "ALL", "GROUP", "HAVING",
                                                  "UNION", "EXCEPT", "INTERSECT"}))
        return std::nullopt;
    Selezione s;
    const std::size_t from = leggiVoci(leggi, s.colonne);
    const std::size_t fine = from == 0 ? 0 : dopoTabella(leggi, from);
    if (fine == 0)
        return std::nullopt;
    if (s.colonne == std::vector<std::string>{"*"})
        s.colonne.clear();
    else if (std::find(s.colonne.begin(), s.colonne.end(), "*") != s.colonne.end())
        return std::nullopt;
    s.tabella = lessico::nudo(leggi[from + 1].testo);
    s.voci = brano(pezzi, leggi, 1, from);
    s.da = brano(pezzi, leggi, from, fine);
    const std::size_t ultimo = leggi.quanti() - (leggi.e(leggi.quanti() - 1, ";") ? 1 : 0);
    s.resto = brano(pezzi, leggi, fine, ultimo);
    return s;
}

} // namespace lumigrafo
