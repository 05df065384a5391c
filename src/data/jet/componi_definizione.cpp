// The bytes of a new table's definition.
#include "data/errori_dao.h"
#include "data/jet/nuova_tabella.h"
#include "data/jet/ordinamento.h"
#include "data/jet/testo.h"

#include <algorithm>

namespace lumigrafo::jet {

namespace {

constexpr std::uint32_t kSegnoColonna = 1625, kSegnoIndice = 1923;
constexpr std::size_t kTesta = 8, kColonneIndice = 10;

bool fissa(const ColonnaNuova& c) {
    return c.tipo == Tipo::Booleano || byteDi(c.tipo) > 0;
}

/// Texts of Access's own tables are never compressed.
bool comprimibile(const ColonnaNuova& c, const TabellaNuova& t) {
    return c.tipo == Tipo::Testo && !t.sistema;
}

class Compositore {
public:
    Compositore(const TabellaNuova& t, const PostiTabella& posti) : t_(t), posti_(posti) {}

    std::string componi() {
        testata();
        colonne();
        indici();
        valoriLunghi();
        return std::move(s_);
    }

private:
    void n(std::uint64_t valore, int byte) {
        for (int i = 0; i < byte; ++i, valore >>= 8)
            s_ += static_cast<char>(valore);
    }
    void nome(const std::string& testo) {
        const std::string byte = scriviTesto(testo, false);
        n(byte.size(), 2);
        s_ += byte;
    }
    std::uint32_t mappa() {
        return Posizione{posti_.mappe, static_cast<std::uint8_t>(posti_.primaMappa + mappeDate_++)}
            .puntatore();
    }

    void testata() {
        const auto variabili =
            std::count_if(t_.colonne.begin(), t_.colonne.end(), [](const auto& c) { return !fissa(c); });
        s_ = {2, 1};
        n(0, 10); // free bytes, next page, length: known at the end
        n(kSegnoColonna, 4);
        n(0, 8); // rows, autonumber
        n(1, 1);
        n(0, 15);
        s_ += t_.sistema ? 'S' : 'N';
        n(t_.colonne.size(), 2);
        n(static_cast<std::uint64_t>(variabili), 2);
        n(t_.colonne.size(), 2);
        n(t_.indici.size(), 4);
        n(t_.indici.size(), 4);
        n(mappa(), 4);
        n(mappa(), 4);
        s_.append(Definizione::kPassoIndici * t_.indici.size(), '\0');
    }

    void colonne() {
        std::size_t variabili = 0, posto = 0;
        for (std::size_t i = 0; i < t_.colonne.size(); ++i) {
            const ColonnaNuova& c = t_.colonne[i];
            const bool testo = c.tipo == Tipo::Testo || c.tipo == Tipo::Memo;
            n(static_cast<std::uint8_t>(c.tipo), 1);
            n(kSegnoColonna, 4);
            n(i, 2);
            n(variabili, 2);
            n(i, 2);
            n(testo ? kOrdineGenerale : 0, 4);
            n((fissa(c) ? 1U : 0U) | 2U | (c.contatore ? 4U : 0U), 1);
            n(comprimibile(c, t_) ? 1 : 0, 1);
            n(0, 4);
            n(fissa(c) && c.tipo != Tipo::Booleano ? posto : 0, 2);
            n(lunga(c), 2);
            variabili += fissa(c) ? 0 : 1;
            posto += byteDi(c.tipo);
        }
        for (const ColonnaNuova& c : t_.colonne)
            nome(c.nome);
    }

    static std::size_t lunga(const ColonnaNuova& c) {
        if (c.tipo == Tipo::Booleano)
            return 1;
        return fissa(c) ? byteDi(c.tipo) : c.tipo == Tipo::Binario ? c.caratteri : 2U * c.caratteri;
    }

    void indici() {
        for (std::size_t k = 0; k < t_.indici.size(); ++k) {
            const IndiceNuovo& x = t_.indici[k];
            n(kSegnoIndice, 4);
            for (std::size_t i = 0; i < kColonneIndice; ++i) {
                n(i < x.colonne.size() ? x.colonne[i] : 0xFFFF, 2);
                n(i < x.colonne.size() ? 1 : 0, 1);
            }
            n(mappa(), 4);
            n(posti_.radici.at(k), 4);
            n(0, 4);
            n(0x80U | (x.unico || x.primaria ? 1U : 0U) | (x.ignoraNulli ? 2U : 0U) |
                  (x.richiesto || x.primaria ? 8U : 0U),
              1);
            n(0, 5);
        }
        for (std::size_t k = 0; k < t_.indici.size(); ++k) {
            n(kSegnoColonna, 4);
            n(k, 4);
            n(k, 4);
            n(0, 1);
            n(0xFFFFFFFF, 4); // no relation
            n(0, 6);
            n(t_.indici[k].primaria ? 1 : 0, 1);
            n(0, 4);
        }
        for (const IndiceNuovo& x : t_.indici)
            nome(x.nome);
    }

    void valoriLunghi() {
        for (std::size_t i = 0; i < t_.colonne.size(); ++i) {
            if (!valoreLungo(t_.colonne[i].tipo))
                continue;
            n(i, 2);
            n(mappa(), 4);
            n(mappa(), 4);
        }
        n(0xFFFF, 2);
    }

    const TabellaNuova& t_;
    const PostiTabella& posti_;
    std::string s_;
    unsigned mappeDate_ = 0;
};

} // namespace

std::size_t mappeDi(const TabellaNuova& t) {
    const auto lunghe =
        std::count_if(t.colonne.begin(), t.colonne.end(), [](const auto& c) { return valoreLungo(c.tipo); });
    return 2 + 2 * static_cast<std::size_t>(lunghe) + t.indici.size();
}

Pagina componiDefinizione(const TabellaNuova& tabella, const PostiTabella& posti) {
    constexpr std::size_t kLiberi = 2, kLunga = 8;
    const std::string byte = Compositore(tabella, posti).componi();
    if (byte.size() > kPagina - kTesta)
        throw erroreDao(dao::kRigaLunga);
    Pagina p;
    std::copy(byte.begin(), byte.end(), p.byte.begin());
    p.scrivi16(kLiberi, kPagina - kTesta - byte.size());
    p.scrivi32(kLunga, static_cast<std::uint32_t>(byte.size()));
    return p;
}

} // namespace lumigrafo::jet
