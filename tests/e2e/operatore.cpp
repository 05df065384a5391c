// A console that calls numbers as fast as it can, for tests that kill it: the real logic and the real files,
// without windows and waits. It says what it does, line by line, and never ends by itself while there are
// orders.
//
//     lum_operatore PROGRAM-FOLDER
//
// "posti|q|1|...|6" what the board shows at the start, "chiamo|q|cell" before each call, "fatto" behind it.
#include "tests/console/banco.h"

#include <string>
#include <unistd.h>

using namespace lumigrafo;
using namespace lumigrafo::prova;

namespace {

/// Unbuffered: what was said before a kill was said.
void di(const std::string& riga) {
    const std::string testo = riga + "\n";
    if (::write(STDOUT_FILENO, testo.data(), testo.size()) < 0)
        ::_exit(1);
}

/// Every third call comes from the scanner.
void chiama(Banco& banco, int q, const std::string& cella, bool scanner) {
    di("chiamo|" + std::to_string(q) + "|" + cella);
    if (scanner)
        banco.digita(codiceScontrino(q, cella) + "\r");
    else
        banco.clic(q, cella);
    di("fatto");
}

} // namespace

int main(int, char** argv) {
    Banco banco{std::filesystem::path(argv[1])};
    banco.caricata();
    for (int q = 0; q < 3; ++q) {
        std::string posti = "posti|" + std::to_string(q);
        for (const std::string& posto : banco.posti(q))
            posti += "|" + posto;
        di(posti);
    }
    int chiamate = 0;
    for (bool altri = true; altri;) {
        altri = false;
        for (int q = 0; q < 3; ++q)
            for (const std::string& cella : banco.celle(q))
                if (!cella.empty()) {
                    chiama(banco, q, cella, ++chiamate % 3 == 0);
                    altri = true;
                    break;
                }
    }
}
