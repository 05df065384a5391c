#include "data/motore.h"

#include "data/formato.h"
#include "data/jet/pagine.h"
#include "data/motore_sqlite.h"

namespace lumigrafo {

std::unique_ptr<Motore> apriMotore(const std::filesystem::path& file, std::chrono::milliseconds attesa) {
    switch (formatoDi(file)) {
    case Formato::Sqlite:
        return std::make_unique<MotoreSqlite>(file, attesa);
    case Formato::Access:
        break;
    }
    jet::Pagine(file, {.sola_lettura = true, .attesa = attesa});
    throw jet::nonLetto("Questa versione non legge gli archivi di Access.");
}

} // namespace lumigrafo
