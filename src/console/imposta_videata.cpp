#include "console/imposta_videata.h"

#include "console/scelta_videata.h"
#include "platform/conversioni.h"

#include <string>
#include <utility>

namespace lumigrafo {

namespace {

bool flag(const FileIni& ini, const char* sezione, const char* chiave) {
    return aBooleano(ini.LeggiIni(sezione, chiave, false));
}

std::int16_t intero(const FileIni& ini, const std::string& chiave, int predefinito) {
    return aIntero16(ini.LeggiIni(kSezioneImpostazioni, chiave, predefinito));
}

Twip arrotondato(Twip t) {
    return arrotonda(t.v);
}

} // namespace

bool archivioLocale(const ContestoConsole& c) {
    return ugualeSenzaMaiuscole(c.porte.ambiente.cartella.string(), c.stato.PathDB);
}

DispositoreConsole::DispositoreConsole(ContestoConsole& contesto, Caricatore& caricatore,
                                       FabbricaVideata fabbrica)
    : c_(contesto), caricatore_(caricatore), fabbrica_(std::move(fabbrica)) {}

void DispositoreConsole::ImpostaVideata() {
    leggiChiavi();
    for (Griglia& grid : c_.stato.grid)
        grid.Rows(0);
    caricatore_.CaricaCategorie();
    mostraReparti();
    c_.stato.TipoLumigrafo = intero(c_.impostazioni, "TipoLumigrafo", 0);
    c_.stato.Lumigrafo9Numeri = flag(c_.impostazioni, kSezioneImpostazioni, "Lumigrafo9Numeri");
    c_.stato.SoloAndroid = flag(c_.impostazioni, kSezioneAndroid, "SoloAndroid");
    if (c_.stato.TipoLumigrafo == 4 || archivioLocale(c_))
        c_.controlli("cmdRipristina").Caption("Carica numeri");
    sceglieVideata();
    disponiDueReparti();
    if (c_.stato.Vocale)
        c_.porte.annunciatore.ScegliVoce();
    preparaFraMessaggio();
    if (c_.stato.TipoLumigrafo == 4)
        c_.porte.server.Apri();
    disponiBottoneAvanti();
}

void DispositoreConsole::leggiChiavi() {
    const FileIni& ini = c_.impostazioni;
    StatoConsole& s = c_.stato;
    s.Vocale = flag(ini, kSezioneImpostazioni, "Vocale");
    s.VelocitaVocale = intero(ini, "VelocitaVocale", 0);
    s.VolumeVocale = intero(ini, "VolumeVocale", 100);
    s.DicituraVocale = ini.LeggiIni(kSezioneImpostazioni, "DicituraVocale", "Numero ");
    s.NumeroMassimoRighe = intero(ini, "NumeroMassimoRighe", 50);
    for (std::size_t i = 0; i < s.Categoria.size(); ++i)
        s.Categoria[i] = intero(ini, "Categoria" + std::to_string(i), 0);
}

void DispositoreConsole::mostraReparti() {
    for (int q = 0; q < kQuadranti; ++q) {
        const auto i = static_cast<std::size_t>(q);
        if (c_.stato.Categoria[i] != 0) {
            c_.controlli("lblReparto", q).Caption(c_.stato.Reparto[i]);
            continue;
        }
        for (const char* nome : {"grid", "lblReparto", "picInfo", "lblNumero", "cmdNumero"})
            c_.controlli(nome, q).Visible(false);
    }
}

void DispositoreConsole::sceglieVideata() {
    const SceltaVideata scelta = scegliVideata(c_.stato);
    c_.stato.frmVideata = fabbrica_(scelta.tipo);
    if (scelta.unReparto)
        ImpostaUnReparto();
}

void DispositoreConsole::ImpostaUnReparto() {
    c_.stato.SoloUnReparto = true;
    Controllo& grid0 = c_.controlli("grid", 0);
    // The console fills its screen, so the screen's width in the console's own measures is that of the
    // layout.
    const Twip schermo = c_.controlli.layout().larghezza;
    const Twip larghezza = arrotondato(schermo - c_.controlli("cmdAllarga").Width() - grid0.Left() - 400);
    grid0.Width(larghezza);
    grid0.FontSize(26);
    Griglia& celle = c_.stato.grid[0];
    celle.Cols(4);
    for (int k = 0; k < 4; ++k)
        celle.larghezzaColonna(k, arrotondato(larghezza / 4));
    celle.altezzaMinima(820);
    Controllo& lblReparto0 = c_.controlli("lblReparto", 0);
    lblReparto0.Width(larghezza);
    // A custom board may come with other quadrants in use: they stay where they were, under the first.
    grid0.ZOrder();
    lblReparto0.ZOrder();
}

void DispositoreConsole::disponiDueReparti() {
    if (c_.stato.Categoria[1] < 1 || c_.stato.Categoria[2] > 0)
        return;
    for (int q = 0; q < 2; ++q) {
        Controllo& grid = c_.controlli("grid", q);
        if (q == 1) {
            const Controllo& grid0 = c_.controlli("grid", 0);
            grid.Left(grid0.Left() + grid0.Width() + 40);
        }
        grid.Width(grid.Width() * 1.5);
        grid.FontSize(26);
        Griglia& celle = c_.stato.grid[static_cast<std::size_t>(q)];
        celle.larghezzaColonna(0, arrotondato(grid.Width() / 3));
        celle.larghezzaColonna(1, arrotondato(grid.Width() / 3)); // column 2 keeps its design width
        celle.altezzaMinima(1000);
        for (const char* nome : {"lblReparto", "picInfo"}) {
            c_.controlli(nome, q).Width(grid.Width());
            c_.controlli(nome, q).Left(grid.Left());
        }
        Controllo& numero = c_.controlli("lblNumero", q);
        numero.Width(grid.Width() / 2);
        numero.Left(grid.Left());
        c_.controlli("cmdNumero", q).Left(numero.Left() + numero.Width());
        c_.controlli("lblReparto", q).FontSize(25);
    }
}

void DispositoreConsole::preparaFraMessaggio() {
    Controllo& pannello = c_.controlli("fraMessaggio");
    pannello.Visible(false);
    const Layout& finestra = c_.controlli.layout();
    pannello.Posto({0, 0, finestra.larghezza, finestra.altezza});
}

void DispositoreConsole::disponiBottoneAvanti() {
    if (!flag(c_.impostazioni, kSezioneImpostazioni, "BottoneAvanti"))
        return;
    Controllo& avanti = c_.controlli("cmdAvanti");
    avanti.Caption("PROSSIMO NUMERO");
    avanti.Left(0);
    avanti.Width(c_.controlli.layout().larghezza);
    avanti.Visible(true);
    avanti.ZOrder();
    Controllo& grid0 = c_.controlli("grid", 0);
    grid0.Height(avanti.Top() - grid0.Top());
}

} // namespace lumigrafo
