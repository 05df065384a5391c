#include "data/jet/nuovo_archivio.h"

#include "data/jet/dato.h"
#include "data/jet/modifica_dati.h"
#include "data/jet/ordinamento.h"
#include "data/jet/pagina_indice.h"
#include "data/jet/proprieta.h"
#include "data/jet/spazio.h"
#include "data/jet/tabella.h"
#include "data/jet/valore_lungo.h"
#include "platform/file_condiviso.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace lumigrafo::jet {

namespace {

// Definitions stand on the pages from the catalog on: the fourth and fifth of them are never filled here.
constexpr std::uint32_t kDiritti = 3, kMappe = 6, kPrimaRadice = 7;
constexpr std::size_t kByteMappa = 69;

using enum Tipo;

/// Access's own tables, column for column as it makes them.
const TabellaNuova kSistema[] = {
    {"MSysObjects",
     {{"Id", Lungo},
      {"ParentId", Lungo},
      {"Name", Testo, 255},
      {"Type", Intero},
      {"DateCreate", Data},
      {"DateUpdate", Data},
      {"Owner", Binario, 510},
      {"Flags", Lungo},
      {"Database", Memo},
      {"Connect", Memo},
      {"ForeignName", Testo, 255},
      {"RmtInfoShort", Binario, 510},
      {"RmtInfoLong", Ole},
      {"Lv", Ole},
      {"LvProp", Ole},
      {"LvModule", Ole},
      {"LvExtra", Ole}},
     {{.nome = "ParentIdName", .colonne = {1, 2}, .unico = true},
      {.nome = "Id", .colonne = {0}, .primaria = true}},
     true},
    {"MSysACEs",
     {{"ObjectId", Lungo}, {"SID", Binario, 510}, {"ACM", Lungo}, {"FInheritable", Booleano}},
     {{.nome = "ObjectId", .colonne = {0}, .richiesto = true}},
     true},
    {"MSysQueries",
     {{"ObjectId", Lungo},
      {"Attribute", Tipo::Byte},
      {"Order", Binario, 510},
      {"Name1", Testo, 255},
      {"Name2", Testo, 255},
      {"Expression", Memo},
      {"Flag", Intero},
      {"LvExtra", Lungo}},
     {{.nome = "ObjectIdAttribute", .colonne = {0, 1, 2}, .primaria = true}},
     true},
    {"MSysRelationships",
     {{"szRelationship", Testo, 255},
      {"grbit", Lungo},
      {"ccolumn", Lungo},
      {"icolumn", Lungo},
      {"szObject", Testo, 255},
      {"szColumn", Testo, 255},
      {"szReferencedObject", Testo, 255},
      {"szReferencedColumn", Testo, 255}},
     {{.nome = "szRelationship", .colonne = {0}, .ignoraNulli = true},
      {.nome = "szObject", .colonne = {4}, .ignoraNulli = true},
      {.nome = "szReferencedObject", .colonne = {6}, .ignoraNulli = true}},
     true},
};

constexpr std::int32_t kRadiceCatalogo = 0x0F000000, kTabelle = 0x0F000001, kBasi = 0x0F000002,
                       kLegami = 0x0F000003, kBaseDati = 0x10000000;
constexpr std::int32_t kDiSistema = INT32_MIN;
constexpr std::string_view kMotore = "\xA7\x31", kAmministratore = "\xA6\x33"; // owners of objects
constexpr std::int64_t kTipoTabella = 1, kTipoBase = 2, kTipoContenitore = 3;

/// A set of pages in a row, with nothing in it; `bit` for all of them.
std::string mappaVuota(char bit) {
    std::string m(kByteMappa, bit);
    m.replace(0, 5, 5, '\0');
    return m;
}

std::string mappaCon(std::uint32_t pagina) {
    std::string m = mappaVuota('\0');
    const std::uint32_t base = pagina & ~7U;
    for (std::size_t i = 0; i < 4; ++i)
        m[1 + i] = static_cast<char>(base >> (8 * i));
    m[5] = static_cast<char>(1 << pagina % 8);
    return m;
}

/// Adds the rows of a table's maps: all empty but those of the indexes, which have their root page.
void accodaMappe(Pagine& pagine, const TabellaNuova& t, std::uint32_t pagina,
                 const std::vector<std::uint32_t>& radici) {
    ModificaDati mappe(pagine, pagina);
    for (int i = 0; i < 2; ++i)
        (void)mappe.aggiungi(mappaVuota('\0'), 0);
    for (const std::uint32_t r : radici)
        (void)mappe.aggiungi(mappaCon(r), 0);
    for (std::size_t i = 2 + radici.size(); i < mappeDi(t); ++i)
        (void)mappe.aggiungi(mappaVuota('\0'), 0);
}

void scriviRadice(Pagina& pagina, std::uint32_t definizione) {
    PaginaIndice vuota;
    vuota.proprietario = definizione;
    vuota.scrivi(pagina);
}

/// The bare pages of a file: page 0, the map of free pages, the system tables without rows.
void scheletro(const std::filesystem::path& file, double creazione) {
    std::vector<Pagina> tutte(kPrimaRadice);
    tutte[kPaginaIntestazione] = nuovaIntestazione({kOrdineGenerale, creazione});
    for (const std::uint32_t p : {kPaginaMappaGlobale, kMappe})
        ModificaDati::inizia(tutte[p], p == kPaginaMappaGlobale ? 1 : 0);
    std::vector<std::vector<std::uint32_t>> radici;
    unsigned mappa = 0;
    for (std::uint32_t k = 0; k < std::size(kSistema); ++k) {
        PostiTabella posti{kPaginaCatalogo + k, kMappe, static_cast<std::uint8_t>(mappa), {}};
        for (std::size_t i = 0; i < kSistema[k].indici.size(); ++i) {
            posti.radici.push_back(static_cast<std::uint32_t>(tutte.size()));
            scriviRadice(tutte.emplace_back(), posti.definizione);
        }
        tutte[posti.definizione] = componiDefinizione(kSistema[k], posti);
        mappa += static_cast<unsigned>(mappeDi(kSistema[k]));
        radici.push_back(std::move(posti.radici));
    }
    {
        FileCondiviso f(file, FileCondiviso::Modo::Scrittura);
        for (std::size_t i = 0; i < tutte.size(); ++i)
            f.scrivi(i * kPagina, tutte[i].byte);
    }
    Pagine pagine(file, {.da_soli = true});
    pagine.cambia([&] {
        ModificaDati globale(pagine, kPaginaMappaGlobale);
        (void)globale.aggiungi(mappaVuota('\xFF'), 0);
        (void)globale.aggiungi(mappaVuota('\0'), 0);
        for (std::uint32_t p = 0; p < tutte.size(); ++p)
            mappaGlobale(pagine).togli(p);
        for (std::size_t k = 0; k < std::size(kSistema); ++k)
            accodaMappe(pagine, kSistema[k], kMappe, radici[k]);
        return true;
    });
    pagine.registra();
}

/// Writes rows by their columns' names.
class Scrittore {
public:
    Scrittore(Pagine& pagine, std::uint32_t definizione) : tabella_(pagine, definizione) {}
    void operator()(std::initializer_list<std::pair<std::string_view, Dato>> valori) {
        const Definizione& d = tabella_.definizione();
        Campi campi(d.colonne.size());
        for (const auto& [nome, dato] : valori)
            if (const Colonna& c = d.colonne[d.cerca(nome).value()]; !valoreLungo(c.tipo))
                campi[*d.cerca(nome)] = scriviDato(c, dato);
            else if (const auto* campo = std::get_if<jet::Byte>(&dato); campo && !campo->byte.empty())
                campi[*d.cerca(nome)] = campo->byte; // it was made for this column
        tabella_.inserisci(campi);
    }

private:
    Tabella tabella_;
};

struct Oggetto {
    std::int64_t id, contenitore;
    std::string_view nome;
    std::int64_t tipo, segni;
    std::string_view proprietario;
    std::string proprieta; ///< the field that leads to them
};

void scriviOggetto(Pagine& pagine, const Oggetto& o) {
    const double quando = pagine.intestazione().creazione;
    Scrittore(pagine, kPaginaCatalogo)({{"Id", o.id},
                                        {"ParentId", o.contenitore},
                                        {"Name", std::string(o.nome)},
                                        {"Type", o.tipo},
                                        {"DateCreate", quando},
                                        {"DateUpdate", quando},
                                        {"Owner", jet::Byte{std::string(o.proprietario)}},
                                        {"Flags", o.segni},
                                        {"LvProp", jet::Byte{o.proprieta}}});
    // Everybody may do everything: the users' group, the engine and the administrator.
    constexpr std::int64_t kTutto = 0xFFFFF;
    Scrittore diritti(pagine, kDiritti);
    for (const std::string_view chi :
         {std::string_view("\xA7\x33"), kAmministratore, std::string_view("\xA7\x36")})
        diritti({{"ObjectId", o.id},
                 {"SID", jet::Byte{std::string(chi)}},
                 {"ACM", kTutto},
                 {"FInheritable", std::int64_t{o.tipo == kTipoContenitore}}});
}

void scriviCatalogo(Pagine& pagine) {
    for (const Oggetto& o :
         {Oggetto{kTabelle, kRadiceCatalogo, "Tables", kTipoContenitore, kDiSistema, kMotore, {}},
          {kBasi, kRadiceCatalogo, "Databases", kTipoContenitore, kDiSistema, kMotore, {}},
          {kLegami, kRadiceCatalogo, "Relationships", kTipoContenitore, kDiSistema, kMotore, {}},
          {kBaseDati, kBasi, "MSysDb", kTipoBase, kDiSistema, kAmministratore, {}}})
        scriviOggetto(pagine, o);
    for (std::uint32_t k = 0; k < std::size(kSistema); ++k)
        scriviOggetto(
            pagine, {kPaginaCatalogo + k, kTabelle, kSistema[k].nome, kTipoTabella, kDiSistema, kMotore, {}});
}

/// Keeps what a table's design says of its columns, and gives the catalog's field that leads to it.
std::string scriviProprieta(Pagine& pagine, const TabellaNuova& tabella) {
    std::vector<Proprieta> proprieta;
    for (const ColonnaNuova& c : tabella.colonne)
        if (c.richiesta || !c.predefinito.empty())
            proprieta.push_back({c.nome, c.predefinito, c.richiesta});
    if (proprieta.empty())
        return {};
    const Definizione d = leggiDefinizione(pagine, kPaginaCatalogo);
    const std::uint16_t numero = d.colonne[d.cerca("LvProp").value()].numero;
    const auto mappe = std::find_if(d.mappeLunghe.begin(), d.mappeLunghe.end(),
                                    [&](const auto& m) { return m.colonna == numero; });
    if (mappe == d.mappeLunghe.end())
        throw danno(kPaginaCatalogo, "le proprietà non hanno posto");
    return scriviValoreLungo(pagine, mappe->possedute, componiProprieta(proprieta));
}

} // namespace

void nuovoArchivio(const std::filesystem::path& file, double creazione) {
    scheletro(file, creazione);
    Pagine pagine(file, {.da_soli = true});
    scriviCatalogo(pagine);
    pagine.registra();
}

void creaTabella(Pagine& pagine, const TabellaNuova& tabella) {
    PostiTabella posti;
    std::string proprieta;
    pagine.cambia([&] {
        posti = {};
        posti.definizione = allocaPagina(pagine);
        posti.mappe = allocaPagina(pagine);
        ModificaDati::inizia(pagine.modifica(posti.mappe), 0);
        for (std::size_t i = 0; i < tabella.indici.size(); ++i) {
            posti.radici.push_back(allocaPagina(pagine));
            scriviRadice(pagine.modifica(posti.radici.back()), posti.definizione);
        }
        pagine.modifica(posti.definizione) = componiDefinizione(tabella, posti);
        accodaMappe(pagine, tabella, posti.mappe, posti.radici);
        proprieta = scriviProprieta(pagine, tabella);
        return true;
    });
    scriviOggetto(pagine, {posti.definizione, kTabelle, tabella.nome, kTipoTabella, 0, kAmministratore,
                           std::move(proprieta)});
}

} // namespace lumigrafo::jet
