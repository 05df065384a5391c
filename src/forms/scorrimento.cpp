#include "forms/scorrimento.h"

#include <algorithm>
#include <cmath>

namespace lumigrafo {

namespace {

/// Less than this is a finger's tremble, not a drag.
constexpr int kSogliaPixel = 12;
/// A finger that rested this long before it left gives no push.
constexpr double kRiposoMs = 80;
constexpr double kFrenoMs = 325;
constexpr double kVelocitaMinima = 0.03;
constexpr double kPesoNuovo = 0.6;

} // namespace

void Scorrimento::misure(int contenuto, int vista) {
    contenuto_ = contenuto;
    vista_ = vista;
    vai(posizione_);
}

int Scorrimento::posizione() const {
    return static_cast<int>(std::lround(posizione_));
}

int Scorrimento::massimo() const {
    return std::max(0, contenuto_ - vista_);
}

void Scorrimento::vai(double posizione) {
    posizione_ = std::clamp(posizione, 0.0, static_cast<double>(massimo()));
}

void Scorrimento::premi(int y, double adesso) {
    fermato_ = inMoto();
    velocita_ = 0;
    premuto_ = true;
    trascina_ = false;
    ySopra_ = yPremuto_ = y;
    ultimo_ = adesso;
}

bool Scorrimento::muovi(int y, double adesso) {
    if (!premuto_)
        return false;
    if (!trascina_ && std::abs(y - yPremuto_) < kSogliaPixel)
        return false;
    trascina_ = true;
    const double passo = ySopra_ - y;
    const double durata = std::max(1.0, adesso - ultimo_);
    velocita_ = kPesoNuovo * passo / durata + (1 - kPesoNuovo) * velocita_;
    vai(posizione_ + passo);
    ySopra_ = y;
    ultimo_ = adesso;
    return true;
}

bool Scorrimento::rilascia(double adesso) {
    const bool clic = premuto_ && !trascina_ && !fermato_;
    if (!trascina_ || adesso - ultimo_ > kRiposoMs)
        velocita_ = 0;
    premuto_ = trascina_ = fermato_ = false;
    ultimo_ = adesso;
    return clic;
}

void Scorrimento::passo(double adesso) {
    const double durata = adesso - ultimo_;
    ultimo_ = adesso;
    const double prima = posizione_;
    vai(posizione_ + velocita_ * durata);
    velocita_ *= std::exp(-durata / kFrenoMs);
    const bool alBordo = posizione_ == prima && durata > 0;
    if (alBordo || std::abs(velocita_) < kVelocitaMinima)
        velocita_ = 0;
}

} // namespace lumigrafo
