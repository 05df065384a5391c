// A cash side in a hurry, for tests that work on an archive at the same time: a process of its own that adds,
// changes and cancels orders at a steady rate until it gets SIGTERM, and then ends with 0.
//
//     lum_cassa_agitata ARCHIVE-FILE BUSINESS-DATE WRITES-A-SECOND SEED LETTER
//
// Its orders have the letter or one of the two behind it. Each write is told before it is begun and when it
// is committed:
//     inizia|nuovo|A|12|1=3,2=1     an order with its categories and pieces
//     inizia|cambia|A|12|1=5        the pieces of a category that is still open, and the highlight
//     inizia|annulla|A|12|          the order leaves the queue, its receipt is cancelled
// and the same with "fatto", or "nulla" where the row was gone or its category closed.
#include "tests/sostegno/archivio_prova.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <random>
#include <thread>
#include <unistd.h>

using namespace lumigrafo::prova;

namespace {

volatile std::sig_atomic_t basta = 0;

struct Ordine {
    std::string sigla;
    int numero = 0;
    std::vector<std::pair<int, int>> categorie;
};

class CassaAgitata {
public:
    CassaAgitata(const std::string& file, const std::string& data, unsigned seme, char lettera)
        : archivio_(file), caso_(seme), lettera_(lettera) {
        archivio_.dataCompetenza = data;
    }

    void scrive() {
        const unsigned cosa = caso_() % 10;
        if (cosa < 4 || vivi_.empty())
            aggiunge();
        else if (cosa < 8)
            cambia();
        else
            annulla();
    }

private:
    void di(const char* quando, const std::string& cosa) {
        const std::string riga = std::string(quando) + "|" + cosa + "\n";
        if (::write(STDOUT_FILENO, riga.data(), riga.size()) < 0)
            ::_exit(1);
    }

    void aggiunge() {
        Ordine o{std::string(1, static_cast<char>(lettera_ + caso_() % 3)), ++numero_, {}};
        const int prima = 1 + static_cast<int>(caso_() % 3);
        o.categorie.emplace_back(prima, 1 + caso_() % 5);
        if (caso_() % 3 == 0)
            o.categorie.emplace_back(prima % 3 + 1, 1 + caso_() % 5);
        std::string cosa = "nuovo|" + chiave(o) + "|";
        for (const auto& [codice, pezzi] : o.categorie)
            cosa += std::to_string(codice) + "=" + std::to_string(pezzi) + ",";
        di("inizia", cosa);
        const bool evidenzia = caso_() % 4 == 0;
        finoInFondo([&] { archivio_.ordine(o.sigla, o.numero, o.categorie, evidenzia); });
        di("fatto", cosa);
        vivi_.push_back(std::move(o));
    }

    void cambia() {
        const Ordine& o = vivi_[caso_() % vivi_.size()];
        const std::string codice = std::to_string(o.categorie[caso_() % o.categorie.size()].first);
        const std::string pezzi = std::to_string(1 + caso_() % 90);
        const std::string cosa = "cambia|" + chiave(o) + "|" + codice + "=" + pezzi + ",";
        di("inizia", cosa);
        finoInFondo([&] {
            archivio_.esegui("UPDATE Lumigrafo SET Pezzi" + codice + " = " + pezzi +
                             ", Evidenzia = -1 - Evidenzia WHERE Categoria" + codice + " <> 0 AND " +
                             dove(o));
        });
        di(archivio_.leggi("SELECT changes()") == "1" ? "fatto" : "nulla", cosa);
    }

    void annulla() {
        const auto i = static_cast<std::ptrdiff_t>(caso_() % vivi_.size());
        const Ordine o = vivi_[static_cast<std::size_t>(i)];
        vivi_.erase(vivi_.begin() + i);
        const std::string cosa = "annulla|" + chiave(o) + "|";
        di("inizia", cosa);
        bool tolto = false;
        finoInFondo([&] {
            archivio_.esegui("BEGIN IMMEDIATE");
            archivio_.esegui("DELETE FROM Lumigrafo WHERE " + dove(o));
            tolto = archivio_.leggi("SELECT changes()") == "1";
            archivio_.esegui("UPDATE ScontriniEmessi SET Stornato = -1 WHERE " + dove(o));
            archivio_.esegui("COMMIT");
        });
        di(tolto ? "fatto" : "nulla", cosa);
    }

    /// What ran into another station's lock begins anew, for a while.
    template <typename Lavoro>
    void finoInFondo(Lavoro&& lavoro) {
        const auto fine = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        for (;;) {
            try {
                return lavoro();
            } catch (const std::runtime_error&) {
                if (std::chrono::steady_clock::now() > fine)
                    throw;
                archivio_.annulla();
            }
        }
    }

    static std::string chiave(const Ordine& o) { return o.sigla + "|" + std::to_string(o.numero); }
    static std::string dove(const Ordine& o) {
        return "Sigla = '" + o.sigla + "' AND Numero = " + std::to_string(o.numero);
    }

    ArchivioProva archivio_;
    std::mt19937 caso_;
    char lettera_;
    std::vector<Ordine> vivi_;
    int numero_ = 0;
};

} // namespace

int main(int, char** argv) {
    std::signal(SIGTERM, [](int) { basta = 1; });
    CassaAgitata cassa(argv[1], argv[2], static_cast<unsigned>(std::stoul(argv[4])), *argv[5]);
    const auto passo = std::chrono::microseconds(1'000'000 / std::stoi(argv[3]));
    for (auto prossima = std::chrono::steady_clock::now(); !basta; prossima += passo) {
        std::this_thread::sleep_until(prossima);
        cassa.scrive();
    }
}
