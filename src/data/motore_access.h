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
    std::int64_t iniziaLettura() override { return pagine_.aggiorna(); }
    void fineLettura() noexcept override {}
    void blocca(const std::string& tabella, std::int64_t riga) override;
    void sblocca() override;
    void annulla() noexcept override;
    [[nodiscard]] bool siRipete() const override { return true; }
    void cedevole(bool si) override;

private:
    jet::Pagine pagine_;
    TabelleVirtuali tabelle_;
    sqlite3* db_ = nullptr;
    int blocchi_ = 0, cedevoli_ = 0;
    std::optional<jet::Pagine::AttesaBreve> breve_;
};

} // namespace lumigrafo
