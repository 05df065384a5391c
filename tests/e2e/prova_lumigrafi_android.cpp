#include "tests/e2e/stazione.h"
#include "tests/sostegno/cliente_nudo.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace lumigrafo::prova {
namespace {

using namespace std::chrono_literals;

/// A remote board in a terminal.
class Remoto {
public:
    explicit Remoto(const std::string& ip) : processo_({LUMIGRAFO_SCHERMO, "--indirizzo", ip}) {}

    /// The lines of the next document; none where it doesn't come.
    std::vector<std::string> documento() {
        std::vector<std::string> righe;
        for (auto riga = processo_.riga(10s); riga && !riga->empty(); riga = processo_.riga(10s))
            righe.push_back(*riga);
        return righe;
    }

private:
    Processo processo_;
};

using LumigrafiAndroid = ConSchermo;

TEST_F(LumigrafiAndroid, unNumeroChiamatoArrivaAiLumigrafiRemotiAncheSeUnoEGuasto) {
    const std::string spento = indirizzoLocale(), acceso = indirizzoLocale();
    Remoto remoto(acceso);
    ASSERT_EQ(remoto.documento().size(), 1u); // it listens
    Stazione s(*schermo);
    s.archivio.ordine("A", 1, {{1, 2}});
    s.archivio.ordine("A", 2, {{2, 3}});
    const FileIni ini(s.cartella.percorso() / kFileImpostazioni);
    ini.ScriviIni(kSezioneAndroid, "IpLumDroid0", spento);
    ini.ScriviIni(kSezioneAndroid, "IpLumDroid2", acceso);
    ASSERT_TRUE(s.accendi());
    using Righe = std::vector<std::string>;
    EXPECT_EQ(remoto.documento(),
              (Righe{"Stiamo servendo i numeri", "  Cucina   :", "  Bar      :", "  Pizzeria :"}));

    const auto notifiche = [&] {
        const auto senzaTitolo = schermo->finestre(s.programma().pid(), "");
        return std::count_if(senzaTitolo.begin(), senzaTitolo.end(), [](const FinestraX& f) {
            return f.posto.x < Schermo::kLarghezza && f.posto.larghezza < Schermo::kLarghezza / 2;
        });
    };
    EXPECT_TRUE(attendiChe(5s, [&] { return notifiche() == 1; }));
    // The notice stands there, and the scanner still types into the console.
    schermo->digita(codiceScontrino(1, "A  2") + "\r");
    EXPECT_EQ(remoto.documento(),
              (Righe{"Stiamo servendo i numeri", "  Cucina   :", "> Bar      :  A 2", "  Pizzeria :"}));
    s.clic(0, 0, 0);
    EXPECT_EQ(remoto.documento(),
              (Righe{"Stiamo servendo i numeri", "> Cucina   :  A 1", "  Bar      :  A 2", "  Pizzeria :"}));
    EXPECT_EQ(notifiche(), 1);
}

} // namespace
} // namespace lumigrafo::prova
