#include "boards/scheda_person.h"

#include "boards/percorsi.h"
#include "boards/sfoglia_sfondo.h"

#include <system_error>

namespace lumigrafo {

namespace {

constexpr const char* kSezioneSfondo = "Sfondo";
constexpr const char* kChiaveSfondo = "Sfondo";

} // namespace

void SchedaPerson::vesti() {
    modulo()("imgSfondo").Adatta(Adattamento::Stirata);
    coloraNumeri(0, colore("ColoreTesto", 0, 16777215));
    leggiNumeri(0);
}

void SchedaPerson::attivata() {
    if (servizi().console.SoloAndroid())
        return;
    const std::string Sfondo = impostazioni().LeggiIni(kSezioneSfondo, kChiaveSfondo);
    // A bare name, written by hand, is a file of the program folder.
    if (Sfondo.empty())
        return;
    const std::string file = testoUtf8(servizi().ambiente.cartella / percorsoUtf8(Sfondo));
    if (improntaDi(file) != mostrato_)
        mostraSfondo(file);
}

SchedaPerson::Impronta SchedaPerson::improntaDi(const std::string& file) {
    const std::filesystem::path percorso = percorsoUtf8(file);
    std::error_code errore;
    Impronta i{.file = file, .scritto = std::filesystem::last_write_time(percorso, errore)};
    if (!errore)
        i.lungo = std::filesystem::file_size(percorso, errore);
    return errore ? Impronta{.file = file} : i;
}

void SchedaPerson::mostraSfondo(const std::string& file) {
    // Taken first: a file that is written over while it is read is read again.
    const Impronta impronta = improntaDi(file);
    mostrato_ = {};
    modulo()("imgSfondo").Figura(file);
    if (impronta.lungo > 0)
        mostrato_ = impronta;
}

void SchedaPerson::DoppioClicSfondo() {
    const std::string scelto = SfogliaSfondo(servizi().sceltaFile, servizi().ambiente);
    if (scelto.empty())
        return;
    impostazioni().ScriviIni(kSezioneSfondo, kChiaveSfondo, scelto);
    if (finestra())
        mostraSfondo(scelto);
}

} // namespace lumigrafo
