#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace lumigrafo::json {

/// A text that grows at its end. Pieces gather in a small buffer, so the text itself grows in large steps.
class Uscita {
public:
    /// The most that spazio() gives at once.
    static constexpr std::size_t kSpazioMassimo = 4096;

    /// Room for that many characters; what is written there counts once avanza() has been told its end.
    [[nodiscard]] char* spazio(std::size_t caratteri) {
        if (buffer_.size() - posizione_ < caratteri)
            riversa();
        return buffer_.data() + posizione_;
    }
    void avanza(const char* fine) { posizione_ = static_cast<std::size_t>(fine - buffer_.data()); }

    void carattere(char c) {
        *spazio(1) = c;
        ++posizione_;
    }
    /// These two take at most kSpazioMassimo.
    void testo(std::string_view pezzo);
    void ripeti(char c, std::size_t volte);
    /// In quotes, with escapes for what may not stand or cannot be seen.
    void stringa(std::string_view utf8);

    /// The whole text; nothing stays.
    [[nodiscard]] std::string prendi();

private:
    void riversa();

    std::string testo_;
    std::array<char, 2 * kSpazioMassimo> buffer_;
    std::size_t posizione_ = 0;
};

} // namespace lumigrafo::json
