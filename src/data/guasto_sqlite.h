#pragma once

#include "platform/guasto.h"

#include <optional>
#include <string>
#include <string_view>

/// SQLite hands on a failure of a virtual table as a text alone; these two bring a Guasto through.
namespace lumigrafo {

[[nodiscard]] std::string guastoPerSqlite(const Guasto& guasto);
/// Nothing for SQLite's own messages.
[[nodiscard]] std::optional<Guasto> guastoDaSqlite(std::string_view messaggio);

} // namespace lumigrafo
