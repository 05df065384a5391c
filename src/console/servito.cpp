#include "console/servito.h"

#include "data/istruzioni.h"
#include "platform/conversioni.h"

namespace lumigrafo {

std::int32_t SqlDate(const std::optional<Data>& data) {
    return data ? data->anno * 10000 + data->mese * 100 + data->giorno : 0;
}

void AggiornaDBLumigrafoCucina(const StatoConsole& stato, const Orologio& orologio, const std::string& sigla,
                               const std::string& numero, std::int16_t index, std::int16_t servito) {
    if (numero.empty() || numero <= "0") // compared as text
        return;
    const auto minuti = [&orologio] {
        const DataOra ora = orologio.adesso();
        return ora.ora * 60 + ora.minuto;
    };
    // With one department the lines of the whole order are marked, whatever their category.
    if (stato.Categoria[2] != 0 || stato.Categoria[1] != 0)
        stato.Db->Execute(istruzioni::dettaglioLumigrafo(
            servito, minuti(), sigla, numero, stato.Categoria.at(static_cast<std::size_t>(index))));
    else
        stato.Db->Execute(istruzioni::dettaglioLumigrafo(servito, minuti(), sigla, numero));
    stato.Db->Execute(istruzioni::dettaglio(servito, minuti(), sigla, numero, SqlDate(stato.DataCompetenza)));
    // Always true, also when a restore takes the mark off the lines.
    stato.Db->Execute(istruzioni::scontrinoServito(sigla, numero, SqlDate(stato.DataCompetenza)));
}

} // namespace lumigrafo
