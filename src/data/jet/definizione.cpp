#include "data/jet/definizione.h"

#include "data/jet/testo.h"

#include <algorithm>

namespace lumigrafo::jet {

namespace {

constexpr std::size_t kSeguente = 4, kTestaSeguenti = 8;
constexpr std::size_t kLunga = 8, kMassime = 41, kVariabili = 43, kColonne = 45, kLogici = 47, kReali = 51,
                      kPossedute = 55, kLibere = 59;
constexpr std::size_t kByteColonna = 25, kByteReale = 52, kByteLogico = 28;
constexpr std::size_t kColonneMassime = 255, kIndiciMassimi = 64;
constexpr std::uint16_t kNessuna = 0xFFFF;
constexpr std::uint8_t kTipoMassimo = 0x14; // Access's own tables have a few more types than tables of users

/// All pages of a definition in one piece: of those behind the first, what follows their header.
std::vector<std::uint8_t> unisci(Pagine& pagine, Definizione& d) {
    std::vector<std::uint8_t> byte;
    for (std::uint32_t p = d.pagina; p != 0;) {
        if (d.catena.size() > 64)
            throw danno(d.pagina, "la definizione non finisce");
        const PaginaLetta pagina = pagine.leggi(p, TipoPagina::Definizione);
        const auto inizio = static_cast<std::ptrdiff_t>(d.catena.empty() ? 0 : kTestaSeguenti);
        byte.insert(byte.end(), pagina->byte.begin() + inizio, pagina->byte.end());
        d.catena.push_back(p);
        p = pagina->u32(kSeguente);
    }
    return byte;
}

/// Reads the definition from its head to its end.
class Lettore {
public:
    Lettore(Vista v, Definizione& d) : v_(v), d_(d) {}

    void leggi() {
        testata();
        colonne();
        indiciReali();
        indiciLogici();
        valoriLunghi();
    }

private:
    void testata() {
        d_.righe = v_.u32(Definizione::kRighe);
        d_.contatore = v_.u32(Definizione::kContatore);
        d_.colonneMassime = v_.u16(kMassime);
        d_.variabili = v_.u16(kVariabili);
        d_.possedute = Posizione::da(v_.u32(kPossedute));
        d_.libere = Posizione::da(v_.u32(kLibere));
        quanteColonne_ = v_.u16(kColonne);
        quantiReali_ = v_.u32(kReali);
        quantiLogici_ = v_.u32(kLogici);
        if (quanteColonne_ > kColonneMassime || quantiReali_ > kIndiciMassimi ||
            quantiLogici_ > 4 * kIndiciMassimi || d_.colonneMassime > 8 * kColonneMassime)
            throw danno(d_.pagina, "la definizione ha troppe colonne o troppi indici");
    }

    void colonne() {
        posto_ = Definizione::kIndici + Definizione::kPassoIndici * quantiReali_;
        for (std::size_t i = 0; i < quanteColonne_; ++i, posto_ += kByteColonna)
            d_.colonne.push_back(colonna(v_.brano(posto_, kByteColonna)));
        for (Colonna& c : d_.colonne)
            c.nome = nome();
        std::stable_sort(d_.colonne.begin(), d_.colonne.end(),
                         [](const Colonna& a, const Colonna& b) { return a.numero < b.numero; });
        ognunaAlSuoPosto();
    }

    /// What is written to one column must not change another.
    void ognunaAlSuoPosto() const {
        std::vector<std::pair<std::size_t, std::size_t>> posti; // from, to
        constexpr std::size_t kDietro = 0x20000;                // where no fixed column reaches
        for (std::size_t i = 0; i < d_.colonne.size(); ++i) {
            const Colonna& c = d_.colonne[i];
            if (i > 0 && c.numero == d_.colonne[i - 1].numero)
                throw danno(d_.pagina, "due colonne hanno lo stesso numero");
            const std::size_t lunga = byteDi(c.tipo) ? byteDi(c.tipo) : c.lunghezza;
            if (c.tipo != Tipo::Booleano && c.fissa)
                posti.emplace_back(c.postoFisso, c.postoFisso + lunga);
            else if (c.tipo != Tipo::Booleano)
                posti.emplace_back(kDietro + c.indiceVariabile, kDietro + c.indiceVariabile + 1);
        }
        std::sort(posti.begin(), posti.end());
        const auto sopra = [](const auto& a, const auto& b) { return a.second > b.first; };
        if (std::adjacent_find(posti.begin(), posti.end(), sopra) != posti.end())
            throw danno(d_.pagina, "due colonne stanno nello stesso posto");
    }

    Colonna colonna(Vista v) const {
        Colonna c;
        c.tipo = static_cast<Tipo>(v.u8(0));
        c.numero = v.u16(5);
        if (v.u8(0) == 0 || v.u8(0) > kTipoMassimo || c.numero >= d_.colonneMassime)
            throw danno(d_.pagina, "una colonna è di tipo sconosciuto");
        c.indiceVariabile = v.u16(7);
        c.ordinamento = v.u32(11);
        c.fissa = v.u8(15) & 0x01;
        c.contatore = v.u8(15) & 0x04;
        c.comprimibile = v.u8(16) & 0x01;
        c.postoFisso = v.u16(21);
        c.lunghezza = v.u16(23);
        return c;
    }

    std::string nome() {
        const std::size_t lunga = v_.u16(posto_);
        std::string n = leggiTesto(v_.brano(posto_ + 2, lunga));
        posto_ += 2 + lunga;
        return n;
    }

    void indiciReali() {
        for (std::size_t i = 0; i < quantiReali_; ++i, posto_ += kByteReale) {
            const Vista v = v_.brano(posto_, kByteReale);
            Indice x;
            for (std::size_t k = 0; k < 10; ++k)
                if (const std::uint16_t numero = v.u16(4 + 3 * k); numero != kNessuna)
                    x.colonne.push_back({postoDi(numero), (v.u8(6 + 3 * k) & 1) != 0});
            x.mappa = Posizione::da(v.u32(34));
            x.radice = v.u32(38);
            x.unico = v.u8(46) & 0x01;
            x.ignoraNulli = v.u8(46) & 0x02;
            x.richiesto = v.u8(46) & 0x08;
            x.distinte = v_.u32(Definizione::kIndici + Definizione::kPassoIndici * i + 4);
            d_.indici.push_back(std::move(x));
        }
    }

    std::size_t postoDi(std::uint16_t numero) const {
        const auto c = std::find_if(d_.colonne.begin(), d_.colonne.end(),
                                    [&](const Colonna& x) { return x.numero == numero; });
        if (c == d_.colonne.end())
            throw danno(d_.pagina, "un indice è su una colonna che non c'è");
        return static_cast<std::size_t>(c - d_.colonne.begin());
    }

    void indiciLogici() {
        constexpr std::uint8_t kPrimaria = 1;
        std::vector<std::size_t> reali;
        for (std::size_t i = 0; i < quantiLogici_; ++i, posto_ += kByteLogico) {
            const Vista v = v_.brano(posto_, kByteLogico);
            if (v.u32(8) >= d_.indici.size())
                throw danno(d_.pagina, "un indice rimanda a uno che non c'è");
            reali.push_back(v.u32(8));
            if (v.u8(23) == kPrimaria) // its columns are never null, and no two keys alike
                d_.indici[reali.back()].unico = d_.indici[reali.back()].richiesto = true;
        }
        for (const std::size_t reale : reali)
            if (std::string n = nome(); d_.indici[reale].nome.empty())
                d_.indici[reale].nome = std::move(n);
    }

    void valoriLunghi() {
        constexpr std::size_t kVoce = 10;
        for (; v_.u16(posto_) != kNessuna; posto_ += kVoce) {
            if (v_.u32(posto_ + 2) != 0) // a column of an empty system table may have no maps yet
                d_.mappeLunghe.push_back(
                    {v_.u16(posto_), Posizione::da(v_.u32(posto_ + 2)), Posizione::da(v_.u32(posto_ + 6))});
        }
    }

    Vista v_;
    Definizione& d_;
    std::size_t posto_ = 0, quanteColonne_ = 0, quantiReali_ = 0, quantiLogici_ = 0;
};

/// Latin letters without their case: the names that occur are words of western languages.
char16_t minuscola(char16_t c) {
    const bool maiuscola = (c >= u'A' && c <= u'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7);
    return maiuscola ? static_cast<char16_t>(c + 32) : c;
}

} // namespace

bool stessoNome(std::string_view a, std::string_view b) {
    if (a == b)
        return true;
    const std::u16string x = aUtf16(a), y = aUtf16(b);
    return std::equal(x.begin(), x.end(), y.begin(), y.end(),
                      [](char16_t p, char16_t q) { return minuscola(p) == minuscola(q); });
}

std::optional<std::size_t> Definizione::cerca(std::string_view nome) const {
    for (std::size_t i = 0; i < colonne.size(); ++i)
        if (stessoNome(colonne[i].nome, nome))
            return i;
    return std::nullopt;
}

std::optional<std::size_t> Definizione::contatoreIn() const {
    for (std::size_t i = 0; i < colonne.size(); ++i)
        if (colonne[i].contatore && colonne[i].tipo == Tipo::Lungo)
            return i;
    return std::nullopt;
}

Definizione leggiDefinizione(Pagine& pagine, std::uint32_t pagina) {
    Definizione d;
    d.pagina = pagina;
    const std::vector<std::uint8_t> byte = unisci(pagine, d);
    const Vista intera(byte, pagina);
    if (intera.u32(kLunga) > intera.lunga())
        throw danno(pagina, "la definizione è più lunga delle sue pagine");
    Lettore(intera, d).leggi();
    return d;
}

} // namespace lumigrafo::jet
