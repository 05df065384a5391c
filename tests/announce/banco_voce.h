#pragma once

#include "announce/annunciatore_vocale.h"
#include "platform/finti/finti.h"
#include "platform/finti/voce_finta.h"
#include "platform/guasto.h"
#include "tests/sostegno/cartella_temporanea.h"

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace lumigrafo::prova {

/// The lines of a text file; none where there is no file. Fails on a file whose last line isn't ended.
inline std::vector<std::string> righe(const std::filesystem::path& file) {
    std::ifstream f(file, std::ios::binary);
    std::stringstream tutto;
    tutto << f.rdbuf();
    std::vector<std::string> lette;
    std::string resto = tutto.str();
    for (std::size_t fine; (fine = resto.find('\n')) != std::string::npos; resto.erase(0, fine + 1))
        lette.push_back(resto.substr(0, fine));
    if (!resto.empty())
        throw std::runtime_error("line without an end: " + resto);
    return lette;
}

class DatiVoceFinti : public DatiVoce {
public:
    std::int16_t velocita = -3, volume = 80;
    bool attiva = true;
    [[nodiscard]] std::int16_t VelocitaVocale() const override { return velocita; }
    [[nodiscard]] std::int16_t VolumeVocale() const override { return volume; }
    [[nodiscard]] bool& VoceAttiva() override { return attiva; }
};

/// The announcer with a voice that falls silent when the test says so.
struct BancoVoce {
    CartellaTemporanea cartella;
    Diario diario; ///< what went to the voice
    OrologioFinto orologio;
    PompaFinta pompa;
    VoceFinta voce{&diario};
    RegistroLog log{cartella.percorso(), orologio};
    DatiVoceFinti dati;
    std::vector<std::string> notifiche;
    AnnunciatoreVocale annunciatore{voce, log, pompa, dati,
                                    [this](const std::string& testo) { notifiche.push_back(testo); }};

    [[nodiscard]] std::vector<std::string> loggati() const {
        return righe(cartella.percorso() / kFileLogVoce);
    }
};

} // namespace lumigrafo::prova
