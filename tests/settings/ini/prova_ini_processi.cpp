#include "platform/file.h"
#include "settings/ini/ini.h"
#include "settings/ini/testo_ini.h"
#include "tests/platform/ambiente_prova.h"

#include <gtest/gtest.h>
#include <random>
#include <string>

namespace lumigrafo {
namespace {

using prova::Cartella;
using prova::Figlio;

TEST(IniTraProcessi, dueScrittoriNonPerdonoNulla) {
    const Cartella c;
    std::filesystem::create_directory(c / "vera");
    prova::scrivi(c / "vera" / "a.ini", "[S]\nPrimo=0\nSecondo=0\n");
    std::filesystem::create_symlink("vera/a.ini", c / "a.ini"); // one of the two comes by another name
    const auto scrittore = [](const std::filesystem::path& file, const char* chiave) {
        return [file, chiave] {
            const FileIni ini(file);
            for (int i = 1; i <= 500; ++i) {
                // Its own key must still hold what it wrote last, whatever the other did meanwhile.
                if (ini.LeggiIni("S", chiave) != std::to_string(i - 1) || ini.ScriviIni("S", chiave, i) == 0)
                    return 1;
            }
            return 0;
        };
    };
    Figlio primo(scrittore(c / "vera" / "a.ini", "Primo")), secondo(scrittore(c / "a.ini", "Secondo"));
    EXPECT_EQ(primo.attendi(), 0);
    EXPECT_EQ(secondo.attendi(), 0);
    EXPECT_EQ(prova::leggi(c / "a.ini"), "[S]\nPrimo=500\nSecondo=500\n");
}

constexpr int kChiavi = 40;

std::string chiave(int i) {
    return "Chiave" + std::to_string(i);
}

/// A file of which every value is one character repeated: none may be cut, and none may be missing.
bool intero(const std::string& testo) {
    for (int i = 0; i < kChiavi; ++i) {
        const auto v = valoreIni(testo, "S", chiave(i));
        if (!v || v->size() != 200 || v->find_first_not_of(v->front()) != v->npos)
            return false;
    }
    return testo.ends_with("\r\n");
}

TEST(IniTraProcessi, uccisoQuandoCapitaLasciaUnFileIntero) {
    const Cartella c;
    const FileIni ini(c / "a.ini");
    for (int i = 0; i < kChiavi; ++i)
        ini.ScriviIni("S", chiave(i), std::string(200, '0'));
    ASSERT_TRUE(intero(prova::leggi(ini.file())));

    std::mt19937 caso(20260315);
    for (int giro = 0; giro < 50; ++giro) {
        const prova::Cenno iniziato;
        Figlio scrittore([&]() -> int {
            for (int i = 0;; ++i) {
                ini.ScriviIni("S", chiave(i % kChiavi), std::string(200, static_cast<char>('a' + i % 26)));
                if (i == 0)
                    iniziato.da();
            }
        });
        iniziato.aspetta();
        for (auto letture = caso() % 300; letture > 0; --letture) {
            const auto testo = leggiFile(ini.file());
            ASSERT_TRUE(testo && intero(*testo)) << "while it was written, round " << giro;
        }
        scrittore.uccidi();
        ASSERT_TRUE(intero(prova::leggi(ini.file()))) << "after the kill of round " << giro;
    }
    // The next writer isn't held up by what they left, and takes it away.
    EXPECT_NE(ini.ScriviIni("S", chiave(0), std::string(200, '1')), 0);
    EXPECT_EQ(c.quantiFile(), 1);
}

} // namespace
} // namespace lumigrafo
