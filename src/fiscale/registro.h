#pragma once

#include "fiscale/driver.h"
#include "fiscale/scontrino.h"
#include "platform/orologio.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace lumigrafo {

/// One attempt to print a receipt.
struct VoceRegistro {
    std::string quando; ///< "2026-03-15 20:30:00"
    std::int32_t id = 0;
    std::int32_t dataCompetenza = 0;
    std::string sigla, numero;
    std::optional<Centesimi> importo;
    Fine fine = Fine::Incerto;
    std::string testo; ///< why it isn't done

    [[nodiscard]] std::string ordine() const { return sigla.empty() ? numero : sigla + " " + numero; }
};

/// The last attempts, in a small text file of the program folder: a line an attempt, tabs between its
/// fields. An attempt is noted before anything is sent, as one of unknown end, so that a power cut in its
/// middle leaves a trace. A file that can't be written stops no receipt.
class RegistroScontrini {
public:
    static constexpr const char* kFile = "Fiscale_scontrini.txt";
    static constexpr std::size_t kVoci = 100;

    RegistroScontrini(const std::filesystem::path& cartellaProgramma, Orologio& orologio)
        : file_(cartellaProgramma / kFile), orologio_(orologio) {}

    /// The newest first. A line that is none is passed over.
    [[nodiscard]] std::vector<VoceRegistro> voci() const;
    /// Whether this very receipt was done before. Its identifier alone doesn't tell: a new archive counts
    /// from 1 again.
    [[nodiscard]] bool giaFatto(const Scontrino& scontrino) const;
    /// An attempt begins; gives its note for `conclude`.
    [[nodiscard]] VoceRegistro inizia(const Scontrino& scontrino);
    /// It has ended.
    void conclude(VoceRegistro voce, const EsitoStampa& esito);

private:
    void scrivi(const VoceRegistro& voce);

    std::filesystem::path file_;
    Orologio& orologio_;
};

} // namespace lumigrafo
