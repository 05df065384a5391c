#include "fiscale/json_programma.h"

#include "links/json_bag.h"
#include "platform/guasto.h"

namespace lumigrafo {

namespace {

/// What the archive doesn't hold is null.
Valore valuta(const std::optional<Centesimi>& importo) {
    return importo ? Valore(Valuta{*importo * 100}) : Valore(nullptr);
}

void scriviRighe(JsonBag& righe, const Scontrino& s) {
    for (const RigaScontrino& r : s.righe) {
        JsonBag& riga = righe.AddNewObject(nullptr);
        riga.Item("descrizione", r.descrizione);
        riga.Item("quantita", r.quantita ? Valore(*r.quantita) : Valore(nullptr));
        riga.Item("prezzo", valuta(r.prezzo));
        riga.Item("totale", valuta(r.totale));
    }
}

/// The member's text; empty where there is none.
std::string testo(const JsonBag& bag, const char* nome) {
    const auto* t = bag.Exists(nome) ? std::get_if<std::string>(&bag.Item(nome)) : nullptr;
    return t ? *t : std::string();
}

/// The whole text as one object; false where it is none.
bool leggi(JsonBag& bag, std::string_view json) {
    return ignorandoGuasti([&] { bag.JSON(json); }) && !bag.IsArray();
}

} // namespace

std::string richiestaDiStampa(const Lavoro& lavoro, const PostoArchivio& archivio) {
    const Scontrino& s = lavoro.scontrino;
    JsonBag radice;
    radice.Item("richiesta", lavoro.prova ? "prova" : "stampa");
    radice.Item("id", s.id);
    radice.Item("sigla", s.sigla);
    radice.Item("numero", s.numero);
    radice.Item("data", s.dataCompetenza);
    radice.Item("copia", lavoro.copia);
    radice.Item("totale", valuta(s.importo()));
    scriviRighe(radice.AddNewArray("righe"), s);
    JsonBag& modulo = radice.AddNewArray("modulo");
    for (const RigaModulo& riga : lavoro.modulo)
        modulo.Item(nullptr, riga.testo);
    JsonBag& dove = radice.AddNewObject("archivio");
    dove.Item("cartella", archivio.cartella);
    dove.Item("locale", archivio.locale);
    return radice.JSON();
}

std::string richiestaDiStato() {
    JsonBag radice;
    radice.Item("richiesta", "stato");
    return radice.JSON();
}

std::optional<EsitoStampa> esitoDa(std::string_view json) {
    JsonBag bag;
    if (!leggi(bag, json))
        return std::nullopt;
    const std::string esito = testo(bag, "esito");
    std::string messaggio = testo(bag, "messaggio");
    if (esito == "fatto")
        return EsitoStampa{Fine::Fatto, ""};
    if (esito != "fallito" && esito != "incerto")
        return std::nullopt;
    if (messaggio.empty())
        messaggio = "Il programma di stampa non è riuscito a stampare.";
    return EsitoStampa{esito == "fallito" ? Fine::NonStampato : Fine::Incerto, messaggio};
}

std::optional<StatoStampante> statoDa(std::string_view json) {
    JsonBag bag;
    const auto* pronta =
        leggi(bag, json) && bag.Exists("pronta") ? std::get_if<bool>(&bag.Item("pronta")) : nullptr;
    if (!pronta)
        return std::nullopt;
    const std::string messaggio = testo(bag, "messaggio");
    if (!messaggio.empty())
        return StatoStampante{*pronta, messaggio};
    return StatoStampante{*pronta, *pronta ? "La stampante è pronta." : "La stampante non è pronta."};
}

} // namespace lumigrafo
