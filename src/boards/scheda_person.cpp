#include "boards/scheda_person.h"

#include "boards/percorsi.h"
#include "boards/sfoglia_sfondo.h"

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
    if (!Sfondo.empty())
        modulo()("imgSfondo").Figura(testoUtf8(servizi().ambiente.cartella / percorsoUtf8(Sfondo)));
}

void SchedaPerson::DoppioClicSfondo() {
    const std::string scelto = SfogliaSfondo(servizi().sceltaFile, servizi().ambiente);
    if (scelto.empty())
        return;
    impostazioni().ScriviIni(kSezioneSfondo, kChiaveSfondo, scelto);
    if (finestra())
        modulo()("imgSfondo").Figura(scelto);
}

} // namespace lumigrafo
