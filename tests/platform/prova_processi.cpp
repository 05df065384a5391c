#include "platform/guasto.h"
#include "platform/linux/processi.h"
#include "tests/platform/ambiente_prova.h"
#include "tests/sostegno/guasto_atteso.h"

#include <algorithm>
#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>

namespace lumigrafo {
namespace {

namespace fs = std::filesystem;
using prova::Cartella;
using prova::Figlio;

/// Names that no other run of these tests bears at the same time.
std::string unico(const std::string& nome) {
    return nome + std::to_string(::getpid());
}

/// A program of any name that waits until it is ended. It has begun when this is made.
class Programma {
public:
    Programma(const Cartella& c, const std::string& nome, const std::string& argv0 = {})
        : file_(copia(c.percorso() / nome)), figlio_([&] {
              const std::string primo = argv0.empty() ? file_.string() : argv0;
              ::execl(file_.c_str(), primo.c_str(), "600", nullptr);
              return 97;
          }) {
        inizio_.aspettaFine();
    }
    /// The signal that ended it, negative.
    int attendi() { return figlio_.attendi(); }

private:
    static fs::path copia(const fs::path& file) {
        fs::copy_file("/bin/sleep", file, fs::copy_options::skip_existing);
        return file;
    }

    fs::path file_;
    prova::Cenno inizio_;
    Figlio figlio_;
};

TEST(Termina, perNomeEsatto) {
    const Cartella c;
    struct Caso {
        std::string programma, cercato;
        int trovati;
    };
    const std::string lungo = unico("programma_dal_nome_lungo_");
    const Caso casi[] = {
        {unico("PrimoP"), unico("PrimoP") + ".exe", 1},
        {unico("PrimoP") + ".exe", unico("PrimoP"), 1},
        {unico("PrimoP"), unico("primop"), 0},
        {unico("PrimoP"), unico("PrimoP") + "x", 0},
        {lungo, lungo, 1},
        {lungo, lungo.substr(0, 15), 0}, // all that the kernel keeps of it
        {unico("altro"), "", 0},
        {unico("altro"), ".exe", 0},
    };
    for (const auto& caso : casi) {
        SCOPED_TRACE(caso.programma + " / " + caso.cercato);
        Programma p(c, caso.programma), q(c, caso.programma);
        ProcessiLinux processi;
        EXPECT_EQ(processi.termina(caso.cercato), 2 * caso.trovati);
        if (caso.trovati == 1) {
            EXPECT_EQ(p.attendi(), -SIGTERM);
            EXPECT_EQ(q.attendi(), -SIGTERM);
        }
    }
    // As a program of the other family looks when an emulator runs it.
    Programma emulato(c, unico("emulatore"), "C:\\Programmi\\" + unico("Primo") + ".exe");
    EXPECT_EQ(ProcessiLinux().termina(unico("Primo")), 1);
    EXPECT_EQ(emulato.attendi(), -SIGTERM);
}

TEST(Termina, maiSeStessoNeChiEMorto) {
    const std::string nome = unico("io");
    ::prctl(PR_SET_NAME, nome.c_str());
    Figlio morto([] { return 0; });
    siginfo_t info;
    ::waitid(P_PID, static_cast<id_t>(morto.pid()), &info, WEXITED | WNOWAIT); // dead, but not yet buried
    EXPECT_EQ(ProcessiLinux().termina(nome), 0);
}

TEST(Avvia, staccatoENellaSuaCartella) {
    const Cartella c;
    const auto script = c / "programma con spazi";
    // The pipe's name is relative: it is found only from the program's own folder.
    prova::scrivi(script, "#!/bin/sh\necho \"$#|$1|$2\" > uscita\n");
    fs::permissions(script, fs::perms(0755));
    ASSERT_EQ(::mkfifo((c / "uscita").c_str(), 0600), 0);
    ProcessiLinux().avvia(script, {"RIAVVIO", "due parole"}, StileFinestra::Ridotta);
    EXPECT_EQ(prova::leggi(c / "uscita"), "2|RIAVVIO|due parole\n");
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << "it is still our child";
}

TEST(Avvia, guastoSeNonPuo) {
    const Cartella c;
    prova::scrivi(c / "testo", "no program");
    ProcessiLinux processi;
    for (const fs::path& p : {fs::path(c / "assente"), fs::path(c / "testo"), c.percorso() / "nessuna" / "a",
                              fs::path("lumigrafo-nessun-programma"), fs::path()})
        EXPECT_EQ(prova::guastoDi([&] { processi.avvia(p, {}, StileFinestra::Normale); }),
                  guasti::kFileNonTrovato)
            << p;
}

} // namespace
} // namespace lumigrafo
