#include "links/server_casse.h"
#include "platform/finti/ascolto_finto.h"
#include "platform/finti/finti.h"
#include "tests/fuzz/giri.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace lumigrafo::prova {

namespace {

constexpr std::size_t kPosti = 10;
constexpr int kNumeri = 20;

void esige(bool vero, const char* cosa) {
    if (!vero)
        throw std::logic_error(cosa);
}

class Giro : CodaCasse {
public:
    explicit Giro(std::string_view passi) : passi_(passi) { server_.Apri(); }

    void tutti() {
        while (!passi_.empty())
            passo();
        esige(!occupato_, "busy at the end");
    }

private:
    using Presa = ReteTcpFinta::Presa;

    unsigned prossimo() {
        if (passi_.empty())
            return 0;
        const auto primo = static_cast<unsigned char>(passi_.front());
        passi_.remove_prefix(1);
        return primo;
    }
    std::string testo() {
        const std::size_t lungo = std::min<std::size_t>(prossimo(), passi_.size());
        std::string t(passi_.substr(0, lungo));
        passi_.remove_prefix(lungo);
        return t;
    }
    Presa& posto() { return *rete_.prese[1 + prossimo() % kPosti]; }
    static bool libero(const Presa* p) { return p->stato == StatoPresa::Chiusa; }

    void passo() {
        switch (prossimo()) {
        case 'c':
            return connetti();
        case 's': {
            Presa& p = posto();
            return manda(p, testo());
        }
        case 'x':
            return chiudi(posto());
        case 'v':
            posto().rotta = true;
            return;
        case 'd':
            dentro_ = prossimo() % 8;
            return;
        default:
            return;
        }
    }

    void connetti() {
        const auto primo = std::find_if(rete_.prese.begin() + 1, rete_.prese.end(), libero);
        ++richieste_;
        rete_.chiede(richieste_, std::to_string(richieste_)); // an address of its own
        esige(primo == rete_.prese.end() || !libero(*primo), "the lowest free slot wasn't taken");
        esige(sistema_.bips == 0, "a request failed");
    }

    void chiudi(Presa& p) {
        if (libero(&p))
            return;
        p.eventi.Close();
        p.rotta = false;
        esige(libero(&p), "a close doesn't free");
    }

    void manda(Presa& p, const std::string& dati) {
        if (libero(&p))
            return;
        const bool lettera = dati.size() == 1 && dati[0] >= 'A' && dati[0] <= 'E';
        const bool occupato = occupato_;
        const std::string chi = p.indirizzo;
        const std::size_t prima = p.inviati.size();
        const int numeri = dati_;
        p.arriva(dati);
        if (libero(&p) || p.indirizzo != chi) // vanished, and perhaps another has the slot
            return;
        if (dati.empty())
            return esige(p.inviati.size() == prima, "an answer to nothing");
        esige(p.inviati.size() > prima, "no answer");
        const std::string& risposta = p.inviati.back();
        if (!lettera)
            esige(risposta == "Codice Cassa errato: " + dati, "the echo differs");
        else if (occupato)
            esige(risposta == "RIPROVARE" && dati_ == numeri, "a number while busy");
        else if (numeri == kNumeri)
            esige(risposta == "KO", "a number from nowhere");
        else
            esige(risposta == "NUMERO " + std::to_string(numeri + 1) && dati_ == numeri + 1,
                  "another number");
    }

    [[nodiscard]] bool Occupato() const override { return occupato_; }
    std::string ProssimoNumero(const std::string&) override {
        esige(!occupato_, "a second number inside the first");
        occupato_ = true;
        const std::string numero = dati_ < kNumeri ? std::to_string(++dati_) : "";
        for (unsigned n = std::exchange(dentro_, 0U); n > 0; --n)
            passo();
        occupato_ = false;
        return numero;
    }

    std::string_view passi_;
    ReteTcpFinta rete_;
    OrologioFinto orologio_;
    AvvisiFinti avvisi_;
    SistemaFinto sistema_;
    ServerCasseTcp server_{rete_, *this, orologio_, avvisi_, sistema_, [](const std::string&) {}};
    std::int64_t richieste_ = 0;
    int dati_ = 0;        ///< numbers given
    unsigned dentro_ = 0; ///< steps that happen inside the next request
    bool occupato_ = false;
};

} // namespace

void giroCasse(std::string_view passi) {
    Giro(passi).tutti();
}

} // namespace lumigrafo::prova
