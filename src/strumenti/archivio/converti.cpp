#include "strumenti/archivio/converti.h"

#include "data/dao.h"
#include "data/jet/definizione.h"
#include "data/schema.h"

#include <algorithm>
#include <iterator>
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
            if (const Valore v = origine->Value(); !v.nullo() || meta->Type() != dao::dbBoolean)
                meta->Value(v); // a null too: the new table's default isn't what the row says
        a.Update();
    }
    return righe;
}

/// Names the tables of an archive that are left behind.
void diNonCopiate(Database& origine, std::ostream& out) {
    const auto tabelle = origine.OpenRecordset("Select name from sqlite_master where type = 'table'");
    for (; !tabelle->Eof(); tabelle->MoveNext()) {
        const std::string nome = tabelle->Fields().Item(0).Value().aTestoOVuoto();
        const bool nostra = std::any_of(std::begin(kTabelle), std::end(kTabelle),
                                        [&](const char* t) { return jet::stessoNome(t, nome); });
        if (!nostra && !nome.starts_with("sqlite_"))
            out << "La tabella " << nome << " non viene copiata.\n";
    }
}

} // namespace

void converti(const std::filesystem::path& da, const std::filesystem::path& a, Formato formato,
              std::ostream& out) {
    const auto origine = Workspace().OpenDatabase(da.string());
    std::error_code ec;
    std::filesystem::create_directories(a.parent_path(), ec); // a failure shows itself with the file
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
        diNonCopiate(*origine, out);
    } catch (const Guasto&) {
        eliminaArchivio(a);
        throw;
    }
}

} // namespace lumigrafo::archivio
