#pragma once

#include "announce/annunciatore.h"
#include "announce/fiscale.h"
#include "boards/finestra_videata.h"
#include "console/finestra_console.h"
#include "links/collegamenti.h"
#include "platform/finti/finti.h"
#include "settings/dialoghi.h"

#include <functional>
#include <string>
#include <utility>

namespace lumigrafo::prova {

/// Writes each call into the diary.
class Annotatore {
protected:
    explicit Annotatore(Diario& diario) : diario_(diario) {}
    void annota(std::string riga) { diario_.push_back(std::move(riga)); }

private:
    Diario& diario_;
};

class DialoghiFinti : public Dialoghi, Annotatore {
public:
    explicit DialoghiFinti(Diario& diario) : Annotatore(diario) {}
    bool passwordGiusta = true;

    void frmSpegni() override { annota("frmSpegni"); }
    void frmDatabase() override { annota("frmDatabase"); }
    void frmRipristina() override { annota("frmRipristina"); }
    void frmInserisciNumeri() override { annota("frmInserisciNumeri"); }
    void frmComunicazione() override { annota("frmComunicazione"); }
    void frmImposta() override { annota("frmImposta"); }
    std::function<void()> durante; ///< runs while the search for the second monitor is under way
    void frmSagoma() override {
        annota("frmSagoma");
        if (durante)
            durante();
    }
    void UtilitaFiscali() override { annota("UtilitaFiscali"); }
    bool ChiediPassword(const std::string& messaggio, const std::string& attesa) override {
        annota("password " + messaggio + " " + attesa);
        return passwordGiusta;
    }
};

/// What the console talks to beside its operator: voice, receipts, boards of the network, cash desks.
class CollegatiFinti : public Annunciatore,
                       public Parlante,
                       public Fiscale,
                       public LumigrafiAndroid,
                       public ServerCasse,
                       Annotatore {
public:
    explicit CollegatiFinti(Diario& diario) : Annotatore(diario) {}
    std::function<void()> dentroScontrino; ///< what happens while a receipt is issued

    void ScegliVoce() override { annota("ScegliVoce"); }
    void AccodaAnnuncio(const std::string& testo) override { annota("voce " + testo); }
    void Parla(const std::string& testo) override { annota("parla " + testo); }
    void EmettiFiscale(const std::string& sigla, const std::string& numero) override {
        annota("fiscale " + sigla + "/" + numero);
        if (dentroScontrino)
            dentroScontrino();
    }
    void SincronizzaLumAndroid(std::int16_t last) override { annota("android " + std::to_string(last)); }
    void Apri() override { annota("server"); }
    void Chiudi() override { annota("server chiuso"); }
};

class FinestraFinta : public FinestraConsole, Annotatore {
public:
    explicit FinestraFinta(Diario& diario) : Annotatore(diario) {}
    bool mnuFiscale = true;

    void Mostra() override { annota("console in vista"); }
    void InPrimoPiano() override { annota("console in primo piano"); }
    void Ridisegna() override { annota("ridisegna"); }
    void Massimizza() override { annota("massimizza"); }
    void Ridisponi() override { annota("ridisponi"); }
    void mnuFiscaleVisibile(bool visibile) override {
        mnuFiscale = visibile;
        annota(visibile ? "mnuFiscale" : "mnuFiscale nascosto");
    }
};

/// A board's window that only keeps what it was told.
class FinestraVideataFinta : public FinestraVideata, Annotatore {
public:
    explicit FinestraVideataFinta(Diario& diario) : Annotatore(diario) { annota("videata caricata"); }
    ~FinestraVideataFinta() override { annota("videata chiusa"); }

    void mostra() override { annota("videata in vista"); }
    void nascondi() override { annota("videata nascosta"); }
    void ridisegna() override { annota("videata ridisegnata"); }
    void riduci(bool ridotta) override {
        ridotta_ = ridotta;
        annota(ridotta ? "videata ridotta" : "videata normale");
    }
    [[nodiscard]] bool ridotta() const override { return ridotta_; }
    void titolo(const std::string&) override {}
    [[nodiscard]] Rettangolo posto() const override { return posto_; }
    void posto(const Rettangolo& rett) override {
        posto_ = rett;
        annota("videata a " + std::to_string(static_cast<int>(rett.left.v)));
    }

private:
    bool ridotta_ = false;
    Rettangolo posto_{0, 0, 12000, 9000};
};

} // namespace lumigrafo::prova
