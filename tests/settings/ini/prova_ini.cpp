#include "settings/ini/ini.h"
#include "tests/platform/ambiente_prova.h"

#include <gtest/gtest.h>
#include <string>

namespace lumigrafo {
namespace {

using prova::Cartella;

TEST(Ini, predefiniti) {
    const Cartella c;
    const FileIni ini(c / "Lumigrafo.ini");
    EXPECT_EQ(ini.LeggiIni("Impostazioni", "DicituraVocale", "Numero "), "Numero");
    EXPECT_EQ(ini.LeggiIni("Impostazioni", "NumeroMassimoRighe", 50), "50");
    EXPECT_EQ(ini.LeggiIni("Impostazioni", "Vocale", false), "False");
    EXPECT_EQ(ini.LeggiIni("Impostazioni", "Sfondo"), "");
    prova::scrivi(ini.file(), "[Impostazioni]\nTitoloLumigrafo=   \nVocale=\" \"\nDicituraVocale=\n");
    for (const char* chiave : {"TitoloLumigrafo", "Vocale", "DicituraVocale", "Assente"})
        EXPECT_EQ(ini.LeggiIni("Impostazioni", chiave, "STIAMO SERVENDO I NUMERI"),
                  "STIAMO SERVENDO I NUMERI");
    const std::string cartellaLunga = "/" + std::string(300, 'a') + "ş";
    EXPECT_EQ(ini.LeggiIni("Impostazioni", "DatabaseLumigrafo", cartellaLunga), cartellaLunga);
}

TEST(Ini, toglieGliSpaziAncheAlChiamante) {
    const Cartella c;
    std::string file = " " + (c / "Città.ini").string() + " ", sezione = " Android ",
                chiave = " PathPubblicita ", valore = "  è qui  ";
    EXPECT_NE(ScriviIni(file, sezione, chiave, valore), 0);
    EXPECT_EQ(file, (c / "Città.ini").string());
    EXPECT_EQ(sezione + "|" + chiave + "|" + valore, "Android|PathPubblicita|è qui");
    EXPECT_EQ(prova::leggi(file), "[Android]\r\nPathPubblicita=\xE8 qui\r\n");
    sezione = " android";
    EXPECT_EQ(LeggiIni(file, sezione, chiave), "è qui");
    EXPECT_EQ(sezione, "android");
}

TEST(Ini, alMassimo255Caratteri) {
    const Cartella c;
    const FileIni ini(c / "Lumigrafo.ini");
    std::string lungo, atteso;
    for (int i = 0; i < 300; ++i) {
        lungo += "è";
        if (i < 255)
            atteso += "è";
    }
    ini.ScriviIni("Impostazioni", "TitoloLumigrafo", lungo);
    EXPECT_EQ(ini.LeggiIni("Impostazioni", "TitoloLumigrafo"), atteso);
    ini.ScriviIni("Impostazioni", "TitoloLumigrafo", std::string(250, 'a') + "     bbb");
    EXPECT_EQ(ini.LeggiIni("Impostazioni", "TitoloLumigrafo"), std::string(250, 'a'));
}

TEST(Ini, scriveNumeriESezioniDiversePerFile) {
    const Cartella c;
    const FileIni ini(c / "Lumigrafo.ini");
    ini.ScriviIni("FormLumigrafo", "Top", 0);
    ini.ScriviIni("FormLumigrafo", "Width", 8752.5F);
    ini.ScriviIni("0", "Numero3", "A 12");
    ini.ScriviIni("0", "Numero2", "");
    ini.ScriviIni("FormLumigrafo", "Top", -300);
    EXPECT_EQ(prova::leggi(ini.file()),
              "[FormLumigrafo]\r\nTop=-300\r\nWidth=8752.5\r\n[0]\r\nNumero3=A 12\r\nNumero2=\r\n");
}

/// Where nothing can be written, or written so that it is found again, the file stays as it is.
TEST(Ini, scrittureImpossibili) {
    const Cartella c;
    EXPECT_EQ(FileIni(c / "nessuna" / "a.ini").ScriviIni("S", "K", 1), 0);
    EXPECT_EQ(FileIni(c / "nessuna" / "a.ini").LeggiIni("S", "K", 5), "5");
    EXPECT_EQ(FileIni(c.percorso()).ScriviIni("S", "K", 1), 0);

    const FileIni ini(c / "a.ini");
    const std::string prima = "[S]\nK=1\n";
    prova::scrivi(ini.file(), prima);
    for (const auto& [sezione, chiave] :
         {std::pair("", "K"), std::pair("S", " "), std::pair("S]", "K"), std::pair("S", "K=1"),
          std::pair("S", ";K"), std::pair("S\nT", "K")})
        EXPECT_EQ(ini.ScriviIni(sezione, chiave, 2), 0) << sezione << '/' << chiave;
    EXPECT_EQ(prova::leggi(ini.file()), prima);

    // A file that can be replaced but not read would lose all its other keys.
    std::filesystem::permissions(ini.file(), std::filesystem::perms(0222));
    std::filesystem::permissions(c.percorso(), std::filesystem::perms(0777));
    prova::Figlio altro([&] {
        prova::senzaPrivilegi();
        return ini.ScriviIni("S", "K", 2) == 0 ? 0 : 1;
    });
    EXPECT_EQ(altro.attendi(), 0);
    std::filesystem::permissions(ini.file(), std::filesystem::perms(0644));
    EXPECT_EQ(prova::leggi(ini.file()), prima);
}

} // namespace
} // namespace lumigrafo
