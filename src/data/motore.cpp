#include "data/motore.h"

#include "data/formato.h"
#include "data/motore_access.h"
#include "data/motore_sqlite.h"

namespace lumigrafo {

std::unique_ptr<Motore> apriMotore(const std::filesystem::path& file, std::chrono::milliseconds attesa) {
    switch (formatoDi(file)) {
    case Formato::Sqlite:
        return std::make_unique<MotoreSqlite>(file, attesa);
    case Formato::Access:
        return std::make_unique<MotoreAccess>(file, attesa);
    }
    return nullptr;
}

} // namespace lumigrafo
