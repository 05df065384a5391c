#include "strumenti/archivio/converti.h"

#include "data/dao.h"
#include "data/schema.h"

#include <ostream>
#include <string>

namespace lumigrafo::archivio {

namespace {

constexpr const char* kTabelle[] = {"Categorie",          "Numero",    "Lumigrafo",
                                    "DettaglioLumigrafo", "Dettaglio", "ScontriniEmessi"};

/// Returns how many rows there were.
int copiaTabella(Recordset& da, Recordset& a, const std::string& tabella, std::ostream& out) {
    std::vector<std::pair<Field*, Field*>> campi;
    for (const Field& campo : da.Fields().tutti()) {
        const bool comune = ignorandoGuasti(
            [&] { campi.emplace_back(&da.Fields().Item(campo.Name()), &a.Fields().Item(campo.Name())); });
        if (!comune)
            out << "La colonna " << campo.Name() << " di " << tabella << " non viene copiata.\n";
    }
    int righe = 0;
    for (; !da.Eof(); da.MoveNext(), ++righe) {
        a.AddNew();
        for (const auto& [origine, meta] : campi)
            if (const Valore v = origine->Value(); !v.nullo())
                meta->Value(v);
        a.Update();
    }
    return righe;
}

} // namespace

void converti(const std::filesystem::path& da, const std::filesystem::path& a, Formato formato,
              std::ostream& out) {
    const auto origine = Workspace().OpenDatabase(da.string());
    creaArchivio(a, formato);
    try {
        Workspace ws;
        const auto nuovo = ws.OpenDatabase(a.string());
        ws.BeginTrans();
        nuovo->Execute("Delete * from Numero"); // a new archive has its first row already
        for (const char* tabella : kTabelle)
            out << tabella << ": "
                << copiaTabella(*origine->OpenRecordset(tabella), *nuovo->OpenRecordset(tabella), tabella,
                                out)
                << " righe.\n";
        ws.CommitTrans();
    } catch (const Guasto&) {
        eliminaArchivio(a);
        throw;
    }
}

} // namespace lumigrafo::archivio
