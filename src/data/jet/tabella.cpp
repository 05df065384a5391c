#include "data/jet/tabella.h"

#include "data/errori_dao.h"
#include "data/jet/albero.h"
#include "data/jet/chiave.h"
#include "data/jet/mappa.h"
#include "data/jet/modifica_dati.h"
#include "data/jet/spazio.h"

#include <algorithm>

namespace lumigrafo::jet {

namespace {

bool stesseColonne(const std::vector<Colonna>& a, const std::vector<Colonna>& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const Colonna& x, const Colonna& y) {
        return x.nome == y.nome && x.tipo == y.tipo && x.numero == y.numero;
    });
}

std::uint32_t numeroIn(const std::string& byte) {
    return Vista({reinterpret_cast<const std::uint8_t*>(byte.data()), byte.size()}, 0).u32(0);
}

/// Whether a definition's page says the same, but for what changes with the rows.
bool stessaDefinizione(const Pagina& a, const Pagina& b, bool prima, std::size_t indici) {
    const auto uguali = [&](std::size_t da, std::size_t fine) {
        return std::equal(a.byte.begin() + static_cast<std::ptrdiff_t>(da),
                          a.byte.begin() + static_cast<std::ptrdiff_t>(fine),
                          b.byte.begin() + static_cast<std::ptrdiff_t>(da));
    };
    if (!prima)
        return uguali(0, kPagina);
    return uguali(0, Definizione::kRighe) && uguali(Definizione::kContatore + 4, Definizione::kIndici) &&
           uguali(std::min(kPagina, Definizione::kIndici + Definizione::kPassoIndici * indici), kPagina);
}

} // namespace

Tabella::Tabella(Pagine& pagine, std::uint32_t definizione)
    : pagine_(pagine), numero_(definizione), definizione_(leggiDefinizione(pagine, definizione)) {}

const Definizione& Tabella::definizione() {
    bool stessa = !lette_.empty();
    for (std::size_t i = 0; stessa && i < lette_.size(); ++i) {
        PaginaLetta ora = pagine_.leggi(definizione_.catena[i]);
        stessa = ora == lette_[i] || stessaDefinizione(*ora, *lette_[i], i == 0, definizione_.indici.size());
        lette_[i] = std::move(ora);
    }
    if (stessa)
        return definizione_;
    lette_.clear(); // what doesn't fit is read, and refused, each time anew
    Definizione nuova = leggiDefinizione(pagine_, numero_);
    if (!stesseColonne(nuova.colonne, definizione_.colonne))
        throw Guasto(dao::kOggettoNonValido, "Un'altra stazione ha cambiato le colonne di una tabella: "
                                             "l'archivio va riaperto.");
    definizione_ = std::move(nuova);
    for (const std::uint32_t n : definizione_.catena)
        lette_.push_back(pagine_.leggi(n));
    return definizione_;
}

void Tabella::riserva(Posizione posizione) {
    pagine_.cambia([&] {
        if (const auto r = riga(posizione))
            pagine_.bloccaPagina(r->vera.pagina);
        pagine_.bloccaPagina(posizione.pagina);
        return true;
    });
}

void Tabella::verificaScrivibile() {
    pagine_.usaTabella(numero_, true);
    for (const Indice& i : definizione().indici)
        if (!chiaviPossibili(definizione_, i))
            throw Guasto(dao::kSolaLettura, "L'indice '" + i.nome +
                                                "' ha un ordinamento che questa versione non conosce: la sua "
                                                "tabella si può solo leggere.");
}

RigaGrezza Tabella::rigaViva(Posizione posizione, std::optional<Vista> attesa) {
    auto r = riga(posizione);
    if (!r)
        throw erroreDao(dao::kRecordEliminato);
    if (attesa && attesa->testo() != r->byte.testo())
        throw erroreDao(dao::kCambiatoDaAltri);
    return std::move(*r);
}

Tabella::Chiavi Tabella::chiaviDi(const Campi& campi) const {
    Chiavi chiavi;
    for (const Indice& i : definizione_.indici)
        chiavi.push_back(chiaveDi(definizione_, i, campi));
    return chiavi;
}

void Tabella::verificaVincoli(const Campi& campi, const Chiavi& nuove, const Chiavi& vecchie,
                              Posizione propria) {
    for (std::size_t k = 0; k < nuove.size(); ++k) {
        const Indice& i = definizione_.indici[k];
        const bool nuova = propria == Posizione{}; // of it, what the index leaves out may yet be required
        if (nuove[k] == vecchie[k] && (nuove[k] || !nuova))
            continue;
        for (const ColonnaIndice& ci : i.colonne)
            if (const Colonna& c = definizione_.colonne[ci.colonna];
                i.richiesto && c.tipo != Tipo::Booleano && !campi[ci.colonna])
                throw erroreDao(dao::kCampoRichiesto, c.nome);
        if (nuove[k] && nuove[k]->size() > Voce::kChiaveMassima)
            throw Guasto(dao::kRigaLunga,
                         "Il record è troppo grande: i suoi testi non entrano nell'indice '" + i.nome + "'.");
        if (i.unico && nuove[k] && !tuttaNulla(definizione_, i, campi) &&
            Albero(pagine_, definizione_, i).contieneChiave(*nuove[k], propria))
            throw erroreDao(dao::kDuplicato);
    }
}

void Tabella::daiContatore(Campi& campi) {
    const auto dove = definizione_.contatoreIn();
    if (!dove)
        return;
    const Pagina& ora = *pagine_.leggi(numero_);
    const std::uint32_t ultimo = ora.u32(Definizione::kContatore);
    auto& campo = campi[*dove];
    if (!campo) {
        campo.emplace(4, '\0');
        for (std::size_t i = 0; i < 4; ++i)
            (*campo)[i] = static_cast<char>((ultimo + 1) >> (8 * i));
    }
    const std::uint32_t dato = numeroIn(*campo);
    if (static_cast<std::int32_t>(dato) > static_cast<std::int32_t>(ultimo))
        pagine_.modifica(numero_).scrivi32(Definizione::kContatore, dato);
}

Posizione Tabella::inserisci(const Campi& campi) {
    return pagine_.cambia([&] {
        pagine_.bloccaPagina(numero_);
        verificaScrivibile();
        Campi completi = campi;
        daiContatore(completi);
        const Chiavi chiavi = chiaviDi(completi), nessuna(chiavi.size());
        verificaVincoli(completi, chiavi, nessuna, {});
        const Posizione posizione = posa(componiRiga(definizione_, completi), 0);
        aggiornaIndici(nessuna, chiavi, posizione);
        contaRighe(+1);
        return posizione;
    });
}

void Tabella::aggiorna(Posizione posizione, const Modifiche& modifiche, std::optional<Vista> attesa) {
    pagine_.cambia([&] {
        verificaScrivibile();
        const RigaGrezza vecchia = rigaViva(posizione, attesa);
        Campi campi = Riga(definizione_, vecchia.byte).campi();
        const Chiavi prima = chiaviDi(campi);
        for (const auto& [colonna, byte] : modifiche)
            campi[colonna] = byte;
        const std::string byte = componiRiga(definizione_, campi);
        if (byte == vecchia.byte.testo())
            return true;
        const Chiavi dopo = chiaviDi(campi);
        verificaVincoli(campi, dopo, prima, posizione);
        riscrivi(posizione, vecchia.vera, byte);
        aggiornaIndici(prima, dopo, posizione);
        return true;
    });
}

void Tabella::elimina(Posizione posizione, std::optional<Vista> attesa) {
    pagine_.cambia([&] {
        pagine_.bloccaPagina(numero_);
        verificaScrivibile();
        const RigaGrezza vecchia = rigaViva(posizione, attesa);
        const Chiavi prima = chiaviDi(Riga(definizione_, vecchia.byte).campi());
        if (vecchia.vera != posizione)
            togliByte(vecchia.vera);
        togliByte(posizione);
        aggiornaIndici(prima, Chiavi(prima.size()), posizione);
        contaRighe(-1);
        return true;
    });
}

} // namespace lumigrafo::jet
