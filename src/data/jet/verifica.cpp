#include "data/jet/verifica.h"

#include "data/jet/catalogo.h"
#include "data/jet/chiave.h"
#include "data/jet/esame_indice.h"
#include "data/jet/mappa.h"
#include "data/jet/scansione.h"
#include "data/jet/valore_lungo.h"

#include <algorithm>
#include <map>
#include <set>

namespace lumigrafo::jet {

namespace {

/// The walk over an archive: gathers what each table owns and what its rows and indexes say.
class Visita {
public:
    explicit Visita(Pagine& pagine) : pagine_(pagine) {}

    Esame esegui() {
        esame_.pagine = pagine_.quante();
        usa(kPaginaIntestazione, "l'intestazione");
        tenta("la mappa delle pagine libere", [&] {
            for (const std::uint32_t p : mappaGlobale(pagine_).tutte())
                libere_.insert(p);
            usa(kPaginaMappaGlobale, "la mappa delle pagine libere");
            usaPagineDiBit(mappaGlobale(pagine_), "la mappa delle pagine libere");
        });
        std::vector<VoceCatalogo> voci;
        tenta("il catalogo", [&] { voci = leggiCatalogo(pagine_); });
        for (const VoceCatalogo& v : voci) {
            if (v.definizione == 0)
                esame_.note.push_back("La tabella '" + v.nome +
                                      "' sta in un altro file: non viene verificata.");
            else
                tenta("la tabella '" + v.nome + "'", [&] { tabella(v); });
        }
        partizione();
        return std::move(esame_);
    }

private:
    template <typename Parte>
    void tenta(const std::string& nome, Parte&& parte) {
        try {
            parte();
        } catch (const Guasto& guasto) {
            discorda(nome + ": " + guasto.descrizione());
        }
    }

    void discorda(const std::string& cosa) {
        constexpr std::size_t kMassime = 1000; // beyond them the file is a ruin in any case
        if (esame_.discordanze.size() < kMassime)
            esame_.discordanze.push_back(cosa);
    }

    void usa(std::uint32_t pagina, const std::string& chi) {
        const auto [posto, nuova] = usate_.emplace(pagina, chi);
        if (!nuova)
            discorda("La pagina " + std::to_string(pagina) + " è sia di " + posto->second + " sia di " + chi +
                     ".");
    }

    void usaPagineDiBit(const Mappa& mappa, const std::string& chi) {
        for (const std::uint32_t p : mappa.pagineDiBit())
            usa(p, chi);
    }

    /// The pages of a map; the page that the map itself lies on is shared by many.
    std::vector<std::uint32_t> mappa(Posizione posizione, const std::string& chi) {
        pagineDiMappe_.insert(posizione.pagina);
        const Mappa m(pagine_, posizione);
        usaPagineDiBit(m, chi);
        if (const auto perse = m.oltreLaFine(); !perse.empty())
            discorda(chi + ": mancano " + std::to_string(perse.size()) +
                     " pagine, il file è stato troncato.");
        return m.tutte();
    }

    void tabella(const VoceCatalogo& voce) {
        nome_ = "la tabella '" + voce.nome + "'";
        definizione_ = leggiDefinizione(pagine_, voce.definizione);
        ++esame_.tabelle;
        for (const std::uint32_t p : definizione_.catena)
            usa(p, nome_);
        const auto possedute = mappa(definizione_.possedute, nome_);
        for (const std::uint32_t p : possedute)
            usa(p, nome_);
        for (const std::uint32_t p : mappa(definizione_.libere, nome_))
            if (!std::binary_search(possedute.begin(), possedute.end(), p))
                discorda(nome_ + ": la pagina " + std::to_string(p) + " ha posto ma non è sua.");
        for (const auto& [colonna, lunghe, conPosto] : definizione_.mappeLunghe) {
            for (const std::uint32_t p : mappa(lunghe, nome_))
                usa(p, nome_);
            if (conPosto.pagina != 0) // Access makes it when it is first needed
                (void)mappa(conPosto, nome_);
        }
        if (!voce.proprieta.empty())
            tenta(nome_ + ", proprietà", [&] { (void)leggiProprieta(pagine_, voce); });
        righe(possedute);
        if (const std::size_t n = trovate_.size(); n != definizione_.righe) {
            const std::string testo = nome_ + ": la definizione conta " + std::to_string(definizione_.righe) +
                                      " righe, ma sono " + std::to_string(n) + ".";
            if (voce.sistema) // Access's own are off at times
                esame_.note.push_back(testo);
            else
                discorda(testo);
        }
        for (const Indice& i : definizione_.indici)
            tenta(nome_ + ", indice '" + i.nome + "'", [&] { indice(i); });
    }

    void righe(const std::vector<std::uint32_t>& possedute) {
        trovate_.clear();
        std::set<Posizione> copie;
        for (const std::uint32_t p : possedute)
            tenta(nome_, [&] { paginaDiRighe(p, copie); });
        for (const RigaTrovata& r : scorri(pagine_, definizione_))
            tenta(nome_, [&] {
                trovate_.push_back({r.posizione, campiDi(r)});
                if (r.riga.vera != r.posizione && copie.erase(r.riga.vera) == 0)
                    discorda(nome_ + ": due righe spostate finiscono nello stesso posto, pagina " +
                             std::to_string(r.riga.vera.pagina) + ".");
            });
        for (const Posizione& p : copie)
            discorda(nome_ + ": pagina " + std::to_string(p.pagina) +
                     ", a una riga spostata non porta nessuno.");
        esame_.righe += trovate_.size();
    }

    void paginaDiRighe(std::uint32_t numero, std::set<Posizione>& copie) {
        const PaginaDati p(pagine_.leggi(numero, TipoPagina::Dati), numero);
        if (p.proprietario() != definizione_.pagina)
            throw danno(numero, "appartiene a un'altra tabella");
        if (p.liberi() != p.fondo() - PaginaDati::kSlot - 2 * p.quanti())
            discorda(nome_ + ": pagina " + std::to_string(numero) + ", i byte liberi non tornano.");
        for (unsigned i = 0; i < p.quanti(); ++i)
            if (p.slot(i).nascosta())
                copie.insert({numero, static_cast<std::uint8_t>(i)});
    }

    Campi campiDi(const RigaTrovata& r) {
        const Riga riga(definizione_, r.riga.byte);
        for (const Colonna& c : definizione_.colonne)
            if (valoreLungo(c.tipo) && !riga.nulla(c))
                (void)leggiValoreLungo(pagine_, riga.valore(c));
        return riga.campi();
    }

    void indice(const Indice& i) {
        ++esame_.indici;
        const std::string chi = nome_ + ", indice '" + i.nome + "'";
        EsameIndice cammino(pagine_, definizione_, i, [&](std::uint32_t pagina, const std::string& cosa) {
            discorda(chi + ": pagina " + std::to_string(pagina) + ", " + cosa + ".");
        });
        const std::vector<std::string> voci = cammino.voci();
        auto pagine = mappa(i.mappa, chi);
        for (const std::uint32_t p : pagine)
            usa(p, chi);
        for (const std::uint32_t p : cammino.pagine())
            if (!std::binary_search(pagine.begin(), pagine.end(), p))
                discorda(chi + ": la pagina " + std::to_string(p) + " non è nella sua mappa.");
        if (chiaviPossibili(definizione_, i))
            confronta(i, voci, chi);
        else
            esame_.note.push_back(chi + ": di un ordinamento sconosciuto, le chiavi non sono verificate.");
    }

    /// Every row's key must stand in the index, and nothing else.
    void confronta(const Indice& i, const std::vector<std::string>& voci, const std::string& chi) {
        std::vector<std::string> attese;
        std::set<std::string> chiavi;
        for (const auto& [posizione, campi] : trovate_) {
            std::optional<std::string> chiave;
            try {
                chiave = chiaveDi(definizione_, i, campi);
            } catch (const Guasto&) {
                esame_.note.push_back(chi + ": ha testi in altri alfabeti, le chiavi non sono verificate.");
                return;
            }
            if (!chiave)
                continue;
            if (i.unico && !tuttaNulla(definizione_, i, campi) && !chiavi.insert(*chiave).second)
                discorda(chi + ": pagina " + std::to_string(posizione.pagina) + ", una chiave doppia.");
            attese.push_back(Voce::componi(*chiave, posizione));
        }
        std::sort(attese.begin(), attese.end());
        std::vector<std::string> inOrdine = voci, mancano, diTroppo;
        std::sort(inOrdine.begin(), inOrdine.end());
        std::set_difference(attese.begin(), attese.end(), inOrdine.begin(), inOrdine.end(),
                            std::back_inserter(mancano));
        std::set_difference(inOrdine.begin(), inOrdine.end(), attese.begin(), attese.end(),
                            std::back_inserter(diTroppo));
        if (!mancano.empty())
            discorda(chi + ": mancano " + std::to_string(mancano.size()) + " righe.");
        if (!diTroppo.empty())
            discorda(chi + ": " + std::to_string(diTroppo.size()) + " voci di troppo.");
    }

    void partizione() {
        for (const std::uint32_t p : pagineDiMappe_)
            usate_.emplace(p, "le mappe");
        std::size_t perse = 0;
        for (std::uint32_t p = 0; p < pagine_.quante(); ++p) {
            const bool usata = usate_.contains(p), libera = libere_.contains(p);
            if (usata && libera)
                discorda("La pagina " + std::to_string(p) + " è di " + usate_.at(p) +
                         " ma risulta anche libera.");
            perse += !usata && !libera ? 1 : 0;
        }
        if (perse > 0)
            esame_.note.push_back(std::to_string(perse) + " pagine non sono di nessuno.");
    }

    Pagine& pagine_;
    Esame esame_;
    std::map<std::uint32_t, std::string> usate_;
    std::set<std::uint32_t> libere_, pagineDiMappe_;
    std::string nome_;
    Definizione definizione_;
    std::vector<std::pair<Posizione, Campi>> trovate_;
};

} // namespace

Esame verifica(Pagine& pagine) {
    // Half of two states isn't damage.
    Esame esame = pagine.coerente([&] { return Visita(pagine).esegui(); }, Pagine::SeTardi::Guasto3187);
    for (const unsigned u : pagine.sospette())
        esame.discordanze.push_back("La stazione numero " + std::to_string(u) +
                                    " è caduta mentre scriveva: l'archivio è sospetto.");
    return esame;
}

} // namespace lumigrafo::jet
