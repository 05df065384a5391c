#pragma once

#include "boards/crea_videata.h"
#include "platform/finti/finti.h"
#include "platform/finti/scelta_file_finta.h"
#include "settings/ini/ini.h"
#include "tests/sostegno/cartella_temporanea.h"

#include <array>
#include <memory>
#include <string>
#include <utility>

namespace lumigrafo::prova {

/// What the board's window was told, of the window made last.
struct VistaFinta {
    bool aperta = false, inVista = false, ridotta = false;
    std::string titolo = "frmLumigrafo";
    Rettangolo posto{0, 0, 15120, 10395};
    int posizionata = 0; ///< times it was placed
    int create = 0;      ///< windows made so far
    EventiFinestra eventi;
};

class FinestraFinta : public FinestraVideata {
public:
    FinestraFinta(VistaFinta& vista, EventiFinestra eventi) : vista_(vista) {
        const int create = vista.create + 1;
        vista = VistaFinta{};
        vista.create = create;
        vista.aperta = true;
        vista.eventi = std::move(eventi);
    }
    ~FinestraFinta() override { vista_.aperta = vista_.inVista = false; }
    void mostra() override { vista_.inVista = true; }
    void nascondi() override { vista_.inVista = false; }
    void ridisegna() override {}
    void riduci(bool ridotta) override { vista_.ridotta = ridotta; }
    [[nodiscard]] bool ridotta() const override { return vista_.ridotta; }
    void titolo(const std::string& testo) override { vista_.titolo = testo; }
    [[nodiscard]] Rettangolo posto() const override { return vista_.posto; }
    void posto(const Rettangolo& rett) override {
        vista_.posto = rett;
        ++vista_.posizionata;
    }

private:
    VistaFinta& vista_;
};

class DatiConsoleFinti : public DatiConsole {
public:
    std::array<std::string, 3> reparti{"CUCINA", "BAR", ""};
    std::array<bool, 3> inUso{true, true, true};
    bool soloAndroid = false;
    [[nodiscard]] std::string Reparto(int quadrante) const override {
        return reparti.at(static_cast<std::size_t>(quadrante));
    }
    [[nodiscard]] bool RepartoInUso(int quadrante) const override {
        return inUso.at(static_cast<std::size_t>(quadrante));
    }
    [[nodiscard]] bool SoloAndroid() const override { return soloAndroid; }
};

/// A board without a window, in a program folder of its own.
class BancoVideata {
public:
    CartellaTemporanea cartella;
    Ambiente ambiente{cartella.percorso(), "lumigrafo", ""};
    FileIni impostazioni{ambiente.file(kFileImpostazioni)};
    FileIni stato{ambiente.file(kFileVideata)};
    PompaFinta pompa;
    TimersFinti timers;
    DatiConsoleFinti console;
    VistaFinta vista;
    SceltaFileFinta sceltaFile;
    ServiziSchede servizi{ambiente, pompa, timers, console, sceltaFile};
    std::unique_ptr<Videata> videata;

    explicit BancoVideata(TipoVideata tipo = TipoVideata::frmLumigrafo) {
        videata = creaVideata(tipo, servizi, [this](auto, EventiFinestra eventi) {
            return std::make_unique<FinestraFinta>(vista, std::move(eventi));
        });
    }

    void imposta(const char* chiave, const ValoreIni& valore) {
        impostazioni.ScriviIni(kSezioneImpostazioni, chiave, valore);
    }
    void impostaPosto(const char* top, const char* left, const char* width, const char* height) {
        impostazioni.ScriviIni(kSezioneForm, "Top", top);
        impostazioni.ScriviIni(kSezioneForm, "Left", left);
        impostazioni.ScriviIni(kSezioneForm, "Width", width);
        impostazioni.ScriviIni(kSezioneForm, "Height", height);
    }
    /// "Top Left Width Height" as the settings file holds them.
    [[nodiscard]] std::string postoSalvato() const {
        std::string t;
        for (const char* chiave : {"Top", "Left", "Width", "Height"})
            t += impostazioni.LeggiIni(kSezioneForm, chiave, "-") + " ";
        return t;
    }
    [[nodiscard]] Controllo& controllo(std::string_view nome, int indice = kSenzaIndice) {
        return videata->controlli()(nome, indice);
    }
    [[nodiscard]] std::string numeri(int slot) {
        std::string t;
        for (int n = 1; n <= 6; ++n)
            t += controllo(etichettaNumero(n), slot).Caption() + "|";
        return t;
    }
};

} // namespace lumigrafo::prova
