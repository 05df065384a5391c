#pragma once

#include <cstdint>

namespace lumigrafo::misure {

/// What a measured process tells of its start, through the descriptor that this variable names.
inline constexpr const char* kVariabileSpia = "LUMIGRAFO_SPIA";

struct Rapporto {
    std::int64_t dipinta; ///< nanoseconds of the monotonic clock when its main window was first painted
    std::int64_t cpu;     ///< processor time used until then, nanoseconds
    std::int64_t attese;  ///< sleeps that were asked for and left out, nanoseconds
    std::int64_t rss;     ///< resident memory once it had nothing more to do, KiB
};

} // namespace lumigrafo::misure
