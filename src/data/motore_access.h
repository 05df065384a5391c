#pragma once

#include "data/jet/pagine.h"
#include "data/motore.h"
#include "data/tabella_virtuale.h"

#include <optional>

namespace lumigrafo {

/// The cash desks' own archive: a file of Access, shared with all stations that work on it. A row that is
/// locked keeps others from writing its page, and none from reading.
class MotoreAccess : public Motore {
public:
    MotoreAccess(const std::filesystem::path& file, std::chrono::milliseconds attesa);
    ~MotoreAccess() override;

    [[nodiscard]] sqlite3* connessione() const override { return db_; }
    [[nodiscard]] bool solaLettura() const override { return pagine_.solaLettura(); }
    [[nodiscard]] std::optional<Guasto> inservibile(const std::string& tabella) const override {
        return tabelle_.inservibile(tabella);
    }
    [[nodiscard]] bool righeIntere(const std::string& tabella) const override;
    std::int64_t iniziaLettura() override { return pagine_.aggiorna(); }
    void fineLettura() noexcept override {}
    [[nodiscard]] bool siRipete() const override { return true; }
    void cedevole(bool si) override;

private:
    [[nodiscard]] const char* inizio() const override { return "BEGIN"; }
    void bloccaRiga(const std::string& tabella, std::int64_t riga) override;
    void rilascia() noexcept override { pagine_.abbandona(); } // rows that were locked and not changed, too

    jet::Pagine pagine_;
    TabelleVirtuali tabelle_;
    sqlite3* db_ = nullptr;
    int cedevoli_ = 0;
    std::optional<jet::Pagine::AttesaBreve> breve_;
};

} // namespace lumigrafo
