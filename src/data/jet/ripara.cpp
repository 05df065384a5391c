#include "data/jet/ripara.h"

#include "data/jet/albero.h"
#include "data/jet/catalogo.h"
#include "data/jet/chiave.h"
#include "data/jet/esame_indice.h"
#include "data/jet/mappa.h"
#include "data/jet/modifica_dati.h"
#include "data/jet/spazio.h"
#include "data/jet/tabella.h"

#include <algorithm>
#include <set>

namespace lumigrafo::jet {

namespace {

/// One table: its rows first, then what is derived from them.
class RiparaTabella {
public:
    RiparaTabella(Pagine& pagine, const VoceCatalogo& voce, std::vector<std::string>& fatto)
        : pagine_(pagine), definizione_(leggiDefinizione(pagine, voce.definizione)),
          nome_("Tabella '" + voce.nome + "'"), sistema_(voce.sistema), fatto_(fatto) {}

    void esegui() {
        pagineDiDati();
        spostate();
        conPosto();
        for (std::size_t k = 0; k < definizione_.indici.size(); ++k)
            if (chiaviPossibili(definizione_, definizione_.indici[k]))
                indice(definizione_.indici[k]);
        conta();
    }

    /// All pages that the table has, by its own account.
    [[nodiscard]] std::set<std::uint32_t> usate() const {
        std::set<std::uint32_t> v(definizione_.catena.begin(), definizione_.catena.end());
        mappa(v, definizione_.possedute, true);
        mappa(v, definizione_.libere, false);
        for (const Indice& i : definizione_.indici)
            mappa(v, i.mappa, true);
        for (const auto& [colonna, lunghe, libere] : definizione_.mappeLunghe) {
            mappa(v, lunghe, true);
            if (libere.pagina != 0)
                mappa(v, libere, false);
        }
        return v;
    }

private:
    void mappa(std::set<std::uint32_t>& v, Posizione posizione, bool ancheLePagine) const {
        const Mappa m(pagine_, posizione);
        v.insert(posizione.pagina);
        for (const std::uint32_t p : m.pagineDiBit())
            v.insert(p);
        if (ancheLePagine)
            for (const std::uint32_t p : m.tutte())
                v.insert(p);
    }

    /// Pages that aren't the table's leave its map; the count of free bytes is made anew.
    void pagineDiDati() {
        Mappa possedute(pagine_, definizione_.possedute);
        togliPerse(possedute);
        for (const std::uint32_t n : possedute.tutte()) {
            bool sua = false;
            ignorandoGuasti([&] {
                const PaginaDati p(pagine_.leggi(n), n);
                for (unsigned i = 0; i < p.quanti(); ++i)
                    (void)p.slot(i);
                sua = p.proprietario() == definizione_.pagina;
                if (const auto liberi = p.fondo() - PaginaDati::kSlot - 2 * p.quanti();
                    sua && p.liberi() != liberi) {
                    pagine_.modifica(n).scrivi16(PaginaDati::kLiberi, liberi);
                    fatto_.push_back(nome_ + ": contati i byte liberi della pagina " + std::to_string(n) +
                                     ".");
                }
            });
            if (sua)
                pagine_di_dati_.push_back(n);
            else {
                possedute.togli(n);
                fatto_.push_back(nome_ + ": tolta la pagina " + std::to_string(n) + ", che non è leggibile.");
            }
        }
    }

    void togliPerse(Mappa& mappa) {
        const auto perse = mappa.oltreLaFine();
        for (const std::uint32_t n : perse)
            mappa.togli(n);
        if (!perse.empty())
            fatto_.push_back(nome_ + ": il file è stato troncato, mancano " + std::to_string(perse.size()) +
                             " pagine.");
    }

    /// A moved row and its address belong together: what has lost the other is dropped.
    void spostate() {
        std::set<Posizione> copie;
        std::vector<Posizione> perse;
        visitaSlot([&](Posizione p, const Slot& s) {
            if (s.nascosta())
                copie.insert(p);
        });
        visitaSlot([&](Posizione p, const Slot& s) {
            if (s.segni & Slot::kNascosta)
                return;
            const bool letta = ignorandoGuasti([&] {
                const auto r = rigaA(pagine_, p, definizione_.pagina);
                (void)Riga(definizione_, r.value().byte).campi();
                copie.erase(r->vera);
            });
            if (!letta)
                perse.push_back(p);
        });
        perse.insert(perse.end(), copie.begin(), copie.end());
        for (const Posizione& p : perse) {
            ModificaDati(pagine_, p.pagina).elimina(p.slot);
            fatto_.push_back(nome_ + ": tolta una riga a metà, pagina " + std::to_string(p.pagina) + ".");
        }
    }

    template <typename Cosa>
    void visitaSlot(Cosa&& cosa) {
        for (const std::uint32_t n : pagine_di_dati_) {
            const PaginaDati p(pagine_.leggi(n), n);
            for (unsigned i = 0; i < p.quanti(); ++i)
                cosa(Posizione{n, static_cast<std::uint8_t>(i)}, p.slot(i));
        }
    }

    void conPosto() {
        Mappa libere(pagine_, definizione_.libere);
        togliPerse(libere);
        for (const std::uint32_t n : libere.tutte())
            if (!std::binary_search(pagine_di_dati_.begin(), pagine_di_dati_.end(), n)) {
                libere.togli(n);
                fatto_.push_back(nome_ + ": corretto l'elenco delle pagine con posto.");
            }
    }

    void indice(const Indice& i) {
        std::vector<std::string> attese;
        try {
            for (const RigaTrovata& r : scorri(pagine_, definizione_))
                if (const auto c = chiaveDi(definizione_, i, Riga(definizione_, r.riga.byte).campi()))
                    attese.push_back(Voce::componi(*c, r.posizione));
        } catch (const Guasto&) {
            return; // texts that have no key: the index is left as it is
        }
        std::sort(attese.begin(), attese.end());
        if (i.unico)
            doppie(i, attese);
        bool sano = Mappa(pagine_, i.mappa).oltreLaFine().empty();
        sano = ignorandoGuasti([&] {
                   EsameIndice esame(pagine_, definizione_, i, [&](auto, const auto&) { sano = false; });
                   sano = esame.voci() == attese && sano;
               }) &&
               sano;
        if (!sano)
            rifai(i, attese);
    }

    /// Which of two rows is the right one nobody but the user knows. A key of nulls alone may be there twice.
    void doppie(const Indice& i, const std::vector<std::string>& attese) {
        for (std::size_t k = 1; k < attese.size(); ++k)
            if (const Voce v{attese[k]};
                v.chiave() == Voce{attese[k - 1]}.chiave() && v.chiave().size() > i.colonne.size())
                fatto_.push_back(nome_ + ": due righe hanno la stessa chiave nell'indice '" + i.nome +
                                 "', una va tolta a mano.");
    }

    /// A damaged map may name pages of others: they stay theirs.
    [[nodiscard]] bool soloSua(const Indice& i, std::uint32_t numero) const {
        const PaginaLetta p = pagine_.leggi(numero);
        if ((p->tipo() != TipoPagina::Foglia && p->tipo() != TipoPagina::Nodo) ||
            p->u32(PaginaDati::kProprietario) != definizione_.pagina)
            return false;
        return std::none_of(definizione_.indici.begin(), definizione_.indici.end(), [&](const Indice& altro) {
            return altro.radice == numero || (&altro != &i && Mappa(pagine_, altro.mappa).contiene(numero));
        });
    }

    void rifai(const Indice& i, const std::vector<std::string>& attese) {
        Mappa mappa(pagine_, i.mappa);
        togliPerse(mappa);
        for (const std::uint32_t n : mappa.tutte())
            if (n != i.radice) {
                mappa.togli(n);
                if (soloSua(i, n))
                    liberaPagina(pagine_, n);
            }
        mappa.aggiungi(i.radice);
        PaginaIndice vuota;
        vuota.proprietario = definizione_.pagina;
        vuota.scrivi(pagine_.modifica(i.radice));
        Albero albero(pagine_, definizione_, i);
        for (const std::string& byte : attese) {
            const Voce v{byte};
            albero.inserisci(v.chiave(), v.riga());
        }
        fatto_.push_back(nome_ + ": rifatto l'indice '" + i.nome + "'.");
    }

    void conta() {
        const auto righe = static_cast<std::uint32_t>(scorri(pagine_, definizione_).size());
        if (righe == definizione_.righe || sistema_)
            return;
        pagine_.modifica(definizione_.pagina).scrivi32(Definizione::kRighe, righe);
        fatto_.push_back(nome_ + ": contate " + std::to_string(righe) + " righe.");
    }

    Pagine& pagine_;
    Definizione definizione_;
    std::string nome_;
    bool sistema_;
    std::vector<std::string>& fatto_;
    std::vector<std::uint32_t> pagine_di_dati_;
};

} // namespace

std::vector<std::string> ripara(Pagine& pagine) {
    auto fatto = pagine.cambia([&] {
        std::vector<std::string> v;
        const auto voci = leggiCatalogo(pagine);
        Mappa libere = mappaGlobale(pagine);
        // First of all no page in use may be given out again.
        for (const VoceCatalogo& voce : voci)
            if (voce.definizione != 0)
                for (const std::uint32_t p : RiparaTabella(pagine, voce, v).usate())
                    if (libere.contiene(p)) {
                        libere.togli(p);
                        v.push_back("Pagina " + std::to_string(p) + ": tolta dalle libere.");
                    }
        for (const VoceCatalogo& voce : voci)
            if (voce.definizione != 0)
                RiparaTabella(pagine, voce, v).esegui();
        return v;
    });
    pagine.registra();
    if (pagine.tagliaAvanzo()) // at last: what can't be mended stays as it was
        fatto.insert(fatto.begin(), "Tagliata l'ultima pagina, scritta a metà.");
    for (const unsigned u : pagine.sospette()) {
        pagine.assolvi(u);
        fatto.push_back("Tolto il segno della stazione numero " + std::to_string(u) +
                        ", caduta mentre scriveva.");
    }
    return fatto;
}

} // namespace lumigrafo::jet
