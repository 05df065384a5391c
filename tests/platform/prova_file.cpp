#include "platform/file.h"
#include "platform/guasto.h"
#include "tests/platform/ambiente_prova.h"
#include "tests/sostegno/disco_pieno.h"
#include "tests/sostegno/guasto_atteso.h"

#include <gtest/gtest.h>
#include <optional>
#include <string>

namespace lumigrafo {
namespace {

namespace fs = std::filesystem;
using prova::Cartella;
using prova::Cenno;
using prova::Figlio;
using prova::guastoDi;
using prova::leggi;
using prova::scrivi;

TEST(SostituisciFile, conservaPermessiECollegamenti) {
    const Cartella c;
    scrivi(c / "vero.ini", "vecchio");
    fs::permissions(c / "vero.ini", fs::perms(0640));
    fs::create_symlink("vero.ini", c / "nome.ini");
    fs::create_symlink("assente.ini", c / "appeso.ini");
    scrivi(c / "vero.ini.nuovo", "left behind by a writer who was killed");

    for (const auto& [nome, vero] : {std::pair("nome.ini", "vero.ini"), {"appeso.ini", "assente.ini"}}) {
        EXPECT_TRUE(sostituisciFile(c / nome, nome));
        EXPECT_EQ(leggi(c / vero), nome);
        EXPECT_TRUE(fs::is_symlink(c / nome));
    }
    EXPECT_EQ(fs::status(c / "vero.ini").permissions(), fs::perms(0640));
    EXPECT_EQ(c.quantiFile(), 4); // two files, two links: no temporary one

    EXPECT_FALSE(sostituisciFile(c / "nessuna" / "a.ini", "x"));
    EXPECT_FALSE(sostituisciFile(c.percorso(), "x"));
}

/// What stops a write must leave the old content and no temporary file.
TEST(SostituisciFile, fallendoLasciaIlVecchio) {
    struct Caso {
        const char* nome;
        int cartella, file;
        std::size_t limite; ///< of the disk, 0: none
    };
    for (const Caso& caso : {Caso{"read-only folder", 0555, 0666, 0}, Caso{"read-only file", 0777, 0444, 0},
                             Caso{"full disk", 0777, 0666, 1000}}) {
        SCOPED_TRACE(caso.nome);
        const Cartella c;
        scrivi(c / "a.ini", "vecchio");
        fs::permissions(c / "a.ini", fs::perms(caso.file));
        fs::permissions(c.percorso(), fs::perms(caso.cartella));
        Figlio figlio([&] {
            prova::senzaPrivilegi();
            std::optional<prova::DiscoPieno> pieno;
            if (caso.limite > 0)
                pieno.emplace(caso.limite);
            return sostituisciFile(c / "a.ini", std::string(5000, 'x')) ? 1 : 0;
        });
        EXPECT_EQ(figlio.attendi(), 0);
        fs::permissions(c.percorso(), fs::perms(0777));
        EXPECT_EQ(leggi(c / "a.ini"), "vecchio");
        EXPECT_EQ(c.quantiFile(), 1);
    }
}

/// Without any lock of the folder, as where it can't be taken.
TEST(SostituisciFile, dueScrittoriNonSiMescolano) {
    const Cartella c;
    const auto file = c / "a.ini";
    const std::string testi[] = {std::string(40'000, 'a'), std::string(90'000, 'b')};
    ASSERT_TRUE(sostituisciFile(file, testi[0]));
    const auto scrittore = [&](const std::string& testo) {
        return [&] {
            for (int i = 0; i < 150; ++i)
                if (!sostituisciFile(file, testo))
                    return 1;
            return 0;
        };
    };
    Figlio primo(scrittore(testi[0])), secondo(scrittore(testi[1]));
    for (int i = 0; i < 2000; ++i) {
        const auto letto = leggiFile(file);
        ASSERT_TRUE(letto && (*letto == testi[0] || *letto == testi[1])) << "after " << i << " readings";
    }
    EXPECT_EQ(primo.attendi(), 0);
    EXPECT_EQ(secondo.attendi(), 0);
    EXPECT_EQ(c.quantiFile(), 1);
}

TEST(FileEsclusivo, tieneFuoriGliAltriFinoAllaMorte) {
    const Cartella c;
    const auto file = c / "Numero.txt";
    const auto apri = [&] { FileEsclusivo f(file); };
    Cenno preso;
    Figlio altro([&] {
        const FileEsclusivo f(file);
        preso.da();
        ::pause();
        return 0;
    });
    preso.aspetta();
    EXPECT_EQ(guastoDi(apri), guasti::kPermessoNegato);
    EXPECT_EQ(guastoDi([&] { eliminaSeLibero(file); }), guasti::kPermessoNegato);
    EXPECT_TRUE(fs::exists(file));
    altro.uccidi();

    scrivi(file, "stale");
    {
        const FileEsclusivo mio(file);
        EXPECT_EQ(leggi(file), "");
        EXPECT_EQ(guastoDi(apri), guasti::kPermessoNegato); // from the same process too
    }
    eliminaSeLibero(file);
    EXPECT_FALSE(fs::exists(file));
    EXPECT_EQ(guastoDi([&] { eliminaSeLibero(file); }), guasti::kFileNonTrovato);
}

TEST(FileEsclusivo, guastiDelSistemaNonSonoAttese) {
    const Cartella c;
    EXPECT_EQ(guastoDi([&] { FileEsclusivo f(c / "nessuna" / "a.txt"); }), guasti::kPercorso);
    EXPECT_EQ(guastoDi([&] { FileEsclusivo f(c.percorso()); }), guasti::kAccesso);
    EXPECT_EQ(guastoDi([&] { eliminaSeLibero(c.percorso()); }), guasti::kAccesso);
}

/// A holder that deletes its file while it lets go must not leave two holders of two files of one name.
TEST(FileEsclusivo, unSoloDetentoreAncheEliminando) {
    const Cartella c;
    const auto lavoro = [&] {
        for (int presi = 0; presi < 300;) {
            try {
                const FileEsclusivo f(c / "Numero.txt");
                // Either fails where somebody else is inside too.
                if (!fs::create_directory(c / "dentro") || !fs::remove(c / "dentro"))
                    return 1;
                ++presi;
            } catch (const Guasto&) {
            }
            ignorandoGuasti([&] { eliminaSeLibero(c / "Numero.txt"); });
        }
        return 0;
    };
    Figlio primo(lavoro), secondo(lavoro);
    EXPECT_EQ(primo.attendi(), 0);
    EXPECT_EQ(secondo.attendi(), 0);
}

} // namespace
} // namespace lumigrafo
