#pragma once

#include "boards/scheda.h"

#include <filesystem>

namespace lumigrafo {

/// The board with a picture of the organiser's own behind six numbers of the first department.
class SchedaPerson : public Scheda {
public:
    explicit SchedaPerson(const ServiziSchede& servizi) : Scheda(TipoVideata::frmLumigrafoPerson, servizi) {}

    /// Lets the operator choose another picture, which is kept for later runs. Lets events through.
    void DoppioClicSfondo() override;

protected:
    void vesti() override;
    /// Shows the picture of the settings. One that is gone or no picture throws Guasto 53 or 481.
    void attivata() override;

private:
    /// A file as it was when its picture was shown. A call of a number is an activation too: a photograph
    /// that is the same is not decoded for each of them.
    struct Impronta {
        std::string file;
        std::uintmax_t lungo = 0;
        std::filesystem::file_time_type scritto{};
        friend bool operator==(const Impronta&, const Impronta&) = default;
    };
    /// Without a length where there is no such file.
    [[nodiscard]] static Impronta improntaDi(const std::string& file);
    void mostraSfondo(const std::string& file);

    Impronta mostrato_;
};

} // namespace lumigrafo
