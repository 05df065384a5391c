#pragma once

#include <exception>
#include <string>

namespace lumigrafo {

/// The numbers of the failures that the program itself raises. An archive's failures bear the numbers of DAO
/// (see data/dao.h).
namespace guasti {
inline constexpr int kSovraccarico = 6;       ///< a value left its range
inline constexpr int kIndice = 9;             ///< a subscript out of its bounds
inline constexpr int kFileNonTrovato = 53;    ///< no such file
inline constexpr int kDiscoPieno = 61;        ///< no room left on the device
inline constexpr int kPermessoNegato = 70;    ///< the file is held by somebody else, or may not be opened
inline constexpr int kAccesso = 75;           ///< the system denies the file, whoever else may use it
inline constexpr int kPercorso = 76;          ///< no such folder
inline constexpr int kTipo = 13;              ///< a text that is no number where a number is needed
inline constexpr int kErroreIO = 57;          ///< a device failed while a file was read or written
inline constexpr int kOggettoMancante = 91;   ///< an object is used that isn't there
inline constexpr int kElementoMancante = 340; ///< an element of a control array that doesn't exist
inline constexpr int kProprieta = 380;        ///< a property can't take that value
inline constexpr int kImmagine = 481;         ///< a file that is no picture
} // namespace guasti

/// The one error type: a number and a description for people. It is caught where a routine goes on in spite
/// of it, and otherwise only at the top of the event loop, which shows it and ends the process.
class Guasto : public std::exception {
public:
    /// A failure with the platform's own text for its number ("Overflow" for 6).
    explicit Guasto(int numero);
    Guasto(int numero, std::string descrizione);

    [[nodiscard]] int numero() const noexcept { return numero_; }
    [[nodiscard]] const std::string& descrizione() const noexcept { return descrizione_; }
    [[nodiscard]] const char* what() const noexcept override { return descrizione_.c_str(); }

private:
    int numero_;
    std::string descrizione_;
};

/// Runs `azione` and lets a Guasto pass unseen: the one way to say "errors are ignored here".
/// Returns true if nothing failed. Other exceptions go on.
template <typename Azione>
bool ignorandoGuasti(Azione&& azione) {
    try {
        azione();
        return true;
    } catch (const Guasto&) {
        return false;
    }
}

} // namespace lumigrafo
