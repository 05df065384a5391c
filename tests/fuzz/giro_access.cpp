#include "data/jet/catalogo.h"
#include "data/jet/dato.h"
#include "data/jet/nuovo_archivio.h"
#include "data/jet/ripara.h"
#include "data/jet/tabella.h"
#include "data/jet/verifica.h"
#include "data/lessico.h"
#include "data/motore.h"
#include "platform/file.h"
#include "tests/data/jet/esporta.h"
#include "tests/fuzz/giri.h"
#include "tests/sostegno/cartella_temporanea.h"

#include <algorithm>
#include <fstream>
#include <random>
#include <sqlite3.h>
#include <stdexcept>
#include <vector>

namespace lumigrafo::prova {

namespace {

using jet::kPagina;
using jet::Tipo;
using namespace std::chrono_literals;

constexpr auto kAttesa = 20ms;

const std::filesystem::path& file() {
    static const CartellaTemporanea cartella = CartellaTemporanea::inMemoria();
    static const std::filesystem::path percorso = cartella.percorso() / "archivio.mdb";
    return percorso;
}

void scriviFile(std::string_view byte) {
    std::ofstream(file(), std::ios::binary) << byte;
}

/// An archive with something of everything: an index of several levels, moved and deleted rows, nulls.
std::string campione() {
    const jet::TabellaNuova tabella{"Prova",
                                    {{"ID", Tipo::Lungo, 0, true},
                                     {"Nome", Tipo::Testo, 120},
                                     {"Quando", Tipo::Data},
                                     {"Fatto", Tipo::Booleano},
                                     {"Totale", Tipo::Valuta}},
                                    {{.nome = "PrimaryKey", .colonne = {0}, .primaria = true},
                                     {.nome = "Nome", .colonne = {1, 3}},
                                     {.nome = "Quando", .colonne = {2}, .unico = true, .ignoraNulli = true}}};
    scriviFile({});
    jet::nuovoArchivio(file(), 46000);
    jet::Pagine pagine(file(), {.da_soli = true});
    creaTabella(pagine, tabella);
    jet::Tabella t(pagine, leggiCatalogo(pagine).back().definizione);
    const auto& c = t.definizione().colonne;
    std::vector<jet::Posizione> righe;
    for (int i = 0; i < 80; ++i)
        righe.push_back(
            t.inserisci({std::nullopt, scriviDato(c[1], std::string(static_cast<std::size_t>(i % 7), 'a')),
                         i % 5 > 1 ? scriviDato(c[2], 46000.0 + i) : std::nullopt,
                         i % 2 ? std::optional(std::string()) : std::nullopt, scriviDato(c[4], 1.5 * i)}));
    for (std::size_t i = 0; i < righe.size(); i += 2)
        t.aggiorna(righe[i], {{1, scriviDato(c[1], std::to_string(i) + " caffè" + std::string(90, 'e'))}});
    for (std::size_t i = 0; i < righe.size(); i += 9)
        t.elimina(righe[i]);
    pagine.registra();
    return leggiFile(file()).value();
}

/// Does the damage that the commands ask for.
class Danni {
public:
    Danni(std::string_view comandi, std::string byte) : comandi_(comandi), byte_(std::move(byte)) {}

    std::string fatti() {
        while (!comandi_.empty() && byte_.size() >= kPagina)
            uno();
        return std::move(byte_);
    }

private:
    unsigned prossimo() {
        if (comandi_.empty())
            return 0;
        const auto primo = static_cast<unsigned char>(comandi_.front());
        comandi_.remove_prefix(1);
        return primo;
    }
    std::size_t due() {
        const std::size_t basso = prossimo();
        return basso | prossimo() << 8;
    }
    std::size_t pagina() { return due() % (byte_.size() / kPagina) * kPagina; }
    std::size_t posto() {
        const std::size_t p = pagina();
        return p + due() % kPagina;
    }

    void uno() {
        switch (prossimo()) {
        case 'b': {
            const std::size_t p = posto();
            byte_[p] = static_cast<char>(byte_[p] ^ static_cast<char>(prossimo()));
            return;
        }
        case 'w':
            for (std::size_t p = posto(), n = prossimo(); n > 0 && p < byte_.size(); --n)
                byte_[p++] = static_cast<char>(prossimo());
            return;
        case 'c': {
            const std::size_t p = pagina();
            byte_.replace(p, kPagina, std::string(byte_, pagina(), kPagina));
            return;
        }
        case 'r': {
            const std::size_t p = pagina();
            std::minstd_rand caso(prossimo() + 1);
            std::generate_n(byte_.begin() + static_cast<std::ptrdiff_t>(p), kPagina,
                            [&] { return static_cast<char>(caso()); });
            return;
        }
        case 't':
            return byte_.resize(posto());
        default:
            return;
        }
    }

    std::string_view comandi_;
    std::string byte_;
};

/// Nothing disagrees. Throws Guasto.
bool sano() {
    jet::Pagine pagine(file(), {.sola_lettura = true, .attesa = kAttesa});
    return verifica(pagine).discordanze.empty();
}

void leggiTutto() {
    jet::Pagine pagine(file(), {.sola_lettura = true, .attesa = kAttesa});
    for (const jet::VoceCatalogo& v : leggiCatalogo(pagine))
        ignorandoGuasti([&] { (void)esporta(pagine, v.nome); });
}

/// The rows of every table, which come in one piece, are those that come field by field.
void leggiComeIlProgramma() {
    Workspace ws(kAttesa);
    const auto db = ws.OpenDatabase(file().string());
    jet::Pagine pagine(file(), {.sola_lettura = true, .attesa = kAttesa});
    for (const jet::VoceCatalogo& v : leggiCatalogo(pagine)) {
        std::vector<std::vector<Valore>> intere, campi;
        const bool lette = ignorandoGuasti([&] {
            campi = valori(*db, perNome(*db, v.nome));
            intere = valori(*db, v.nome);
        });
        if (lette && intere != campi)
            throw std::logic_error("whole rows that aren't their fields");
    }
}

/// Rows come, change and go in every table, as far as its indexes let them.
void lavora() {
    const auto motore = apriMotore(file(), kAttesa);
    const auto esegui = [&](const std::string& sql) {
        std::vector<std::string> prime;
        sqlite3_exec(
            motore->connessione(), sql.c_str(),
            [](void* v, int, char** campi, char**) {
                static_cast<std::vector<std::string>*>(v)->emplace_back(campi[0] ? campi[0] : "");
                return 0;
            },
            &prime, nullptr);
        return prime;
    };
    for (const std::string& nome : esegui("SELECT name FROM sqlite_master")) {
        const std::string t = lessico::traVirgolette(nome);
        std::string tranneLaPrima; // which no two rows may have alike
        for (const std::string& c : esegui("SELECT name FROM pragma_table_info(" + t + ") WHERE cid > 0")) {
            const std::string colonna = lessico::traVirgolette(c);
            (void)esegui("UPDATE " + t + " SET " + colonna + " = (SELECT max(" + colonna + ") FROM " + t +
                         " WHERE " + colonna + " > 'a' OR " + colonna + " = 46001) WHERE rowid % 5 = 1");
            tranneLaPrima += (tranneLaPrima.empty() ? "" : ",") + colonna;
        }
        (void)esegui("BEGIN");
        (void)esegui("DELETE FROM " + t + " WHERE rowid % 3 = 0");
        (void)esegui("INSERT INTO " + t + " (" + tranneLaPrima + ") SELECT " + tranneLaPrima + " FROM " + t +
                     " LIMIT 9");
        (void)esegui("INSERT INTO " + t + " DEFAULT VALUES");
        (void)esegui("COMMIT");
    }
}

void lavoraSenzaGuastare(const char* quale) {
    const bool prima = sano();
    ignorandoGuasti(lavora);
    if (prima && !sano())
        throw std::logic_error(quale);
}

} // namespace

EsitoAccess giroAccess(std::string_view dati) {
    static const std::string buono = campione();
    const std::string byte = dati.starts_with(std::string_view(buono).substr(0, 4))
                                 ? std::string(dati)
                                 : Danni(dati, buono).fatti();
    scriviFile(byte);
    bool intero = false;
    if (!ignorandoGuasti([&] { intero = sano(); }))
        return EsitoAccess::Rifiutato;
    ignorandoGuasti(leggiTutto);
    ignorandoGuasti(leggiComeIlProgramma);
    lavoraSenzaGuastare("a sound archive was damaged by the work on it");

    scriviFile(byte);
    const bool riparato = ignorandoGuasti([] {
        jet::Pagine pagine(file(), {.attesa = kAttesa});
        (void)ripara(pagine);
    });
    if (intero && !(riparato && sano()))
        throw std::logic_error("a sound archive was damaged by its repair");
    if (!riparato || !sano())
        return EsitoAccess::DaRiparare;
    lavoraSenzaGuastare("a mended archive was damaged by the work on it");
    return intero ? EsitoAccess::Sano : EsitoAccess::Riparato;
}

} // namespace lumigrafo::prova
