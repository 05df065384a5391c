#include "fiscale/modulo.h"

#include "platform/conversioni.h"
#include "platform/utf8.h"

#include <cstdlib>

namespace lumigrafo {

namespace {

std::string dueCifre(int n) {
    return (n < 10 ? "0" : "") + std::to_string(n);
}

std::string dataOra(const DataOra& o) {
    return dueCifre(o.data.giorno) + "/" + dueCifre(o.data.mese) + "/" + std::to_string(o.data.anno) + " " +
           dueCifre(o.ora) + ":" + dueCifre(o.minuto);
}

/// A text of the archive on one line: to a printer, control characters would be commands.
std::string pulito(const std::string& testo) {
    std::string fuori;
    for (std::size_t i = 0; i < testo.size();) {
        const char32_t c = prossimoCarattere(testo, i);
        accodaCarattere(fuori, c < 0x20 || (c >= 0x7F && c < 0xA0) ? U' ' : c);
    }
    return trim(fuori);
}

/// The first characters of a text, `quanti` at the most, and the bytes that they take.
std::size_t byteDi(const std::string& testo, std::size_t quanti) {
    std::size_t i = 0;
    while (quanti-- > 0 && i < testo.size())
        static_cast<void>(prossimoCarattere(testo, i));
    return i;
}

/// Cut at blanks where there are some, and within a word that is longer than a line.
std::vector<std::string> aCapo(std::string testo, std::size_t largo) {
    std::vector<std::string> righe;
    while (caratteri(testo) > largo) {
        std::size_t fine = byteDi(testo, largo);
        const auto blanco = testo.rfind(' ', fine);
        if (blanco != testo.npos && blanco > 0)
            fine = blanco;
        righe.push_back(trim(testo.substr(0, fine)));
        testo = trim(testo.substr(fine));
    }
    righe.push_back(std::move(testo));
    return righe;
}

class Impaginatore {
public:
    explicit Impaginatore(const ImpostazioniFiscali& i)
        : i_(i), largo_(static_cast<std::size_t>(i.caratteri)) {}

    void centrata(const std::string& testo, bool grande = false) {
        for (const std::string& riga : aCapo(pulito(testo), largo_))
            modulo_.push_back({std::string((largo_ - caratteri(riga)) / 2, ' ') + riga, grande});
    }
    /// A text to the left and an amount to the right, on a further line where they don't fit on one.
    void coppia(const std::string& testo, const std::string& importo, bool grande = false) {
        const std::size_t spazio = importo.empty() ? largo_ : largo_ - caratteri(importo) - 1;
        const auto righe = aCapo(testo, spazio);
        for (std::size_t n = 0; n < righe.size(); ++n) {
            const bool ultima = n + 1 == righe.size() && !importo.empty();
            const std::size_t vuoti = ultima ? largo_ - caratteri(righe[n]) - caratteri(importo) : 0;
            modulo_.push_back({righe[n] + std::string(vuoti, ' ') + (ultima ? importo : ""), grande});
        }
    }
    void filo() { modulo_.push_back({std::string(largo_, '-')}); }
    void intestazione() { pieni(i_.intestazione); }
    void piede() { pieni(i_.piede); }
    [[nodiscard]] Modulo fine() { return std::move(modulo_); }

private:
    void pieni(const auto& righe) {
        for (const std::string& riga : righe)
            if (!trim(riga).empty())
                centrata(riga);
    }

    const ImpostazioniFiscali& i_;
    std::size_t largo_;
    Modulo modulo_;
};

std::string testoOVuoto(std::optional<Centesimi> importo) {
    return importo ? testoImporto(*importo) : "";
}

void righe(Impaginatore& p, const Scontrino& s) {
    for (const RigaScontrino& riga : s.righe) {
        const std::string nome = pulito(riga.descrizione);
        p.coppia(nome.empty() ? "Articolo" : nome, testoOVuoto(riga.totale));
        if (riga.quantita && *riga.quantita != 1)
            p.coppia("  " + testoQuantita(*riga.quantita) +
                         (riga.prezzo ? " x " + testoImporto(*riga.prezzo) : " pz"),
                     "");
    }
}

void totali(Impaginatore& p, const Scontrino& s) {
    const auto somma = s.sommaRighe();
    if (somma && s.totale && *somma != *s.totale) {
        p.coppia("Subtotale", testoImporto(*somma));
        p.coppia("Differenza", testoImporto(*s.totale - *somma));
    }
    if (const auto importo = s.importo())
        p.coppia("TOTALE", "€ " + testoImporto(*importo), true);
}

} // namespace

Modulo impagina(const Scontrino& s, const ImpostazioniFiscali& impostazioni, const DataOra& adesso,
                bool copia) {
    Impaginatore p(impostazioni);
    p.intestazione();
    p.filo();
    p.centrata("ORDINE " + s.ordine(), true);
    if (copia)
        p.centrata("*** COPIA ***", true);
    p.coppia(dataOra(adesso), "N. " + std::to_string(s.id));
    p.filo();
    if (!s.righe.empty()) {
        righe(p, s);
        p.filo();
    }
    totali(p, s);
    p.piede();
    return p.fine();
}

Modulo moduloDiProva(const ImpostazioniFiscali& impostazioni, const DataOra& adesso) {
    Impaginatore p(impostazioni);
    p.intestazione();
    p.filo();
    p.centrata("PROVA DI STAMPA", true);
    p.coppia(dataOra(adesso), std::to_string(impostazioni.caratteri) + " caratteri");
    p.filo();
    p.coppia("Caffè, tè, più, però, così, perché", "€ 1,20");
    p.coppia("ÀÈÉÌÒÙ àèéìòù ç ñ ü °", "");
    p.coppia("TOTALE", "€ 1,20", true);
    p.piede();
    return p.fine();
}

} // namespace lumigrafo
