#pragma once

#include "fiscale/driver.h"

#include <filesystem>

namespace lumigrafo {

/// Writes each receipt as a text file of its own into a folder, which it makes where it is missing. A file
/// stands there whole or not at all, and none is ever overwritten.
class DriverFile final : public Driver {
public:
    explicit DriverFile(std::filesystem::path cartella) : cartella_(std::move(cartella)) {}
    [[nodiscard]] EsitoStampa stampa(const Lavoro& lavoro) override;
    [[nodiscard]] StatoStampante stato() override;

private:
    std::filesystem::path cartella_;
};

} // namespace lumigrafo
