#include "strumenti/schermo/argomenti.h"

#include <algorithm>
#include <charconv>

namespace lumigrafo::schermo {

namespace {

std::uint16_t leggiPorta(const std::string& testo) {
    std::uint16_t porta = 0;
    const auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), porta);
    if (errore != std::errc() || fine != testo.data() + testo.size() || porta == 0)
        throw ErroreDiUso("--porta dev'essere un numero da 1 a 65535, non '" + testo + "'.");
    return porta;
}

} // namespace

Argomenti leggiArgomenti(const std::vector<std::string>& parole) {
    const auto chiede = [&](const char* opzione) {
        return std::find(parole.begin(), parole.end(), opzione) != parole.end();
    };
    Argomenti a{.aiuto = chiede("--help"), .versione = chiede("--version"), .indirizzo = {}};
    if (a.aiuto || a.versione)
        return a;
    for (std::size_t i = 0; i < parole.size(); ++i) {
        const std::string& parola = parole[i];
        if (parola == "--finestra") {
            a.finestra = true;
            continue;
        }
        if (parola != "--porta" && parola != "--indirizzo")
            throw ErroreDiUso("Opzione sconosciuta: '" + parola + "'.");
        if (++i == parole.size() || parole[i].empty())
            throw ErroreDiUso("Manca il valore di " + parola + ".");
        if (parola == "--porta")
            a.porta = leggiPorta(parole[i]);
        else
            a.indirizzo = parole[i];
    }
    return a;
}

const char* testoAiuto() {
    return R"(Uso: lumigrafo-schermo [OPZIONI]

Un lumigrafo remoto: riceve i numeri da Lumigrafo come un lumigrafo Android e li mostra.
L'indirizzo di questa macchina va scritto nelle impostazioni di Lumigrafo, fra i lumigrafi Android.

  --finestra         mostra i numeri a tutto schermo invece che nel terminale; Esc chiude
  --porta N          porta su cui ascoltare (predefinita: 8989, quella a cui Lumigrafo spedisce)
  --indirizzo IP     ascolta soltanto su questo indirizzo della macchina

  --help             stampa questo testo
  --version          stampa la versione

Codici di uscita: 0 fatto, 1 operazione fallita, 2 chiamata errata.
)";
}

} // namespace lumigrafo::schermo
