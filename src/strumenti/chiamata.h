#pragma once

#include <stdexcept>

/// What the command line tools have in common.
namespace lumigrafo::strumenti {

/// Exit codes: done, failed, called wrongly.
inline constexpr int kFatto = 0, kFallito = 1, kChiamataErrata = 2;

/// A call that can't be understood; the text tells the user why.
struct ErroreDiUso : std::runtime_error {
    using std::runtime_error::runtime_error;
};

} // namespace lumigrafo::strumenti
