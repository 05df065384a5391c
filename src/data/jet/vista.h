#pragma once

#include "data/jet/danno.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace lumigrafo::jet {

/// A stretch of the file's bytes, little-endian, read with every offset checked: what lies outside throws
/// Guasto 3049. It doesn't own the bytes. `pagina` is where they come from, for the failure's text.
class Vista {
public:
    Vista() = default;
    Vista(std::span<const std::uint8_t> byte, std::uint32_t pagina) : byte_(byte), pagina_(pagina) {}

    [[nodiscard]] std::size_t lunga() const { return byte_.size(); }
    [[nodiscard]] std::uint32_t pagina() const { return pagina_; }
    [[nodiscard]] std::span<const std::uint8_t> byte() const { return byte_; }
    [[nodiscard]] std::string_view testo() const {
        return {reinterpret_cast<const char*>(byte_.data()), byte_.size()};
    }

    [[nodiscard]] std::uint8_t u8(std::size_t i) const { return static_cast<std::uint8_t>(intero(i, 1)); }
    [[nodiscard]] std::uint16_t u16(std::size_t i) const { return static_cast<std::uint16_t>(intero(i, 2)); }
    [[nodiscard]] std::uint32_t u24(std::size_t i) const { return static_cast<std::uint32_t>(intero(i, 3)); }
    [[nodiscard]] std::uint32_t u32(std::size_t i) const { return static_cast<std::uint32_t>(intero(i, 4)); }
    [[nodiscard]] std::uint64_t u64(std::size_t i) const { return intero(i, 8); }
    /// Page numbers and row addresses in indexes are the file's only big-endian numbers.
    [[nodiscard]] std::uint32_t be(std::size_t i, std::size_t quanti) const {
        controlla(i, quanti);
        std::uint32_t n = 0;
        for (std::size_t k = 0; k < quanti; ++k)
            n = n << 8 | byte_[i + k];
        return n;
    }

    [[nodiscard]] Vista brano(std::size_t i, std::size_t quanti) const {
        controlla(i, quanti);
        return {byte_.subspan(i, quanti), pagina_};
    }
    [[nodiscard]] Vista da(std::size_t i) const {
        controlla(i, 0);
        return {byte_.subspan(i), pagina_};
    }

private:
    void controlla(std::size_t i, std::size_t quanti) const {
        if (i > byte_.size() || quanti > byte_.size() - i)
            throw danno(pagina_, "un dato finisce fuori dal suo posto");
    }
    [[nodiscard]] std::uint64_t intero(std::size_t i, std::size_t quanti) const {
        controlla(i, quanti);
        std::uint64_t n = 0;
        for (std::size_t k = quanti; k-- > 0;)
            n = n << 8 | byte_[i + k];
        return n;
    }

    std::span<const std::uint8_t> byte_;
    std::uint32_t pagina_ = 0;
};

} // namespace lumigrafo::jet
