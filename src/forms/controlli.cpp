#include "forms/controlli.h"

#include "platform/guasto.h"
#include "platform/utf8.h"

#include <algorithm>
#include <utility>

namespace lumigrafo {

namespace {

/// Nothing is chosen in a list; a box is unticked, a slider stands at 0 or as near as it can.
int valoreIniziale(const Descrizione& d) {
    switch (d.tipo) {
    case Tipo::Combo:
    case Tipo::Lista:
        return -1;
    case Tipo::Cursore:
        return std::clamp(0, d.corsa.minimo, d.corsa.massimo);
    default:
        return 0;
    }
}

/// As much of a text as its box holds.
std::string contenuto(std::string testo, int massima) {
    std::size_t fine = 0;
    for (int i = 0; i < massima && fine < testo.size(); ++i)
        (void)prossimoCarattere(testo, fine);
    return massima > 0 ? testo.substr(0, fine) : testo;
}

} // namespace

std::string nomeCompleto(std::string_view nome, int indice) {
    std::string n(nome);
    if (indice != kSenzaIndice)
        n += "(" + std::to_string(indice) + ")";
    return n;
}

Controllo::Controllo(Controlli& modulo, const Descrizione& disegno)
    : modulo_(modulo), disegno_(disegno), nomeCompleto_(nomeCompleto(disegno.nome, disegno.indice)),
      caption_(disegno.caption), rett_(disegno.rett), visibile_(disegno.visibile),
      fontName_(disegno.carattere.nome), fontSize_(disegno.carattere.dimensione), testo_(disegno.testo),
      sfondo_(disegno.sfondo), sfumatura1_(disegno.sfondo.value_or(kNero)), sfumatura2_(sfumatura1_),
      figura_(disegno.figura), valore_(valoreIniziale(disegno)) {}

void Controllo::annuncia(Aspetto aspetto) const {
    if (modulo_.osservatore_)
        modulo_.osservatore_->cambiato(*this, aspetto);
}

template <typename T>
void Controllo::cambia(T& campo, T nuovo, Aspetto aspetto) {
    if (campo == nuovo)
        return; // an equal value repaints nothing
    campo = std::move(nuovo);
    annuncia(aspetto);
}

void Controllo::Caption(std::string testo) {
    cambia(caption_, contenuto(std::move(testo), disegno_.lunghezzaMassima), Aspetto::Testo);
}
void Controllo::Posto(const Rettangolo& rett) {
    cambia(rett_, rett, Aspetto::Geometria);
}
void Controllo::Left(Twip v) {
    cambia(rett_.left, v, Aspetto::Geometria);
}
void Controllo::Top(Twip v) {
    cambia(rett_.top, v, Aspetto::Geometria);
}
void Controllo::Width(Twip v) {
    cambia(rett_.width, v, Aspetto::Geometria);
}
void Controllo::Height(Twip v) {
    cambia(rett_.height, v, Aspetto::Geometria);
}
void Controllo::Visible(bool v) {
    cambia(visibile_, v, Aspetto::Visibilita);
}
void Controllo::Enabled(bool v) {
    cambia(abilitato_, v, Aspetto::Abilitazione);
}
void Controllo::FontName(std::string nome) {
    cambia(fontName_, std::move(nome), Aspetto::Carattere);
}
void Controllo::FontSize(double punti) {
    cambia(fontSize_, punti, Aspetto::Carattere);
}
void Controllo::ForeColor(Colore c) {
    cambia(testo_, c, Aspetto::Colori);
}
void Controllo::BackColor(std::optional<Colore> c) {
    cambia(sfondo_, c, Aspetto::Colori);
}
void Controllo::Sfumatura1(Colore c) {
    cambia(sfumatura1_, c, Aspetto::Colori);
}
void Controllo::Sfumatura2(Colore c) {
    cambia(sfumatura2_, c, Aspetto::Colori);
}
void Controllo::Figura(std::string nome) {
    figura_ = std::move(nome);
    annuncia(Aspetto::Figura); // even where the name is the same: the file may have changed
}
void Controllo::Adatta(Adattamento modo) {
    cambia(adatta_, modo, Aspetto::Figura);
}
void Controllo::MargineFigura(Twip v) {
    cambia(margineFigura_, v, Aspetto::Figura);
}
void Controllo::Clear() {
    voci_.clear();
    annuncia(Aspetto::Voci);
    cambia(valore_, -1, Aspetto::Valore);
}
void Controllo::AddItem(std::string voce) {
    voci_.push_back(std::move(voce));
    annuncia(Aspetto::Voci);
}
void Controllo::Voci(std::vector<std::string> voci) {
    voci_ = std::move(voci);
    valore_ = -1;
    annuncia(Aspetto::Voci);
}
void Controllo::ListIndex(int posizione) {
    if (posizione < -1 || posizione >= static_cast<int>(voci_.size()))
        throw Guasto(guasti::kProprieta);
    cambia(valore_, posizione, Aspetto::Valore);
}
void Controllo::Value(int valore) {
    const Corsa& corsa = disegno_.corsa;
    const int preso = disegno_.tipo == Tipo::Cursore ? std::clamp(valore, corsa.minimo, corsa.massimo)
                                                     : static_cast<int>(valore != 0);
    cambia(valore_, preso, Aspetto::Valore);
}
void Controllo::ZOrder() {
    annuncia(Aspetto::Ordine);
}
void Controllo::SetFocus() {
    annuncia(Aspetto::Fuoco);
}

Controlli::Controlli(const Layout& layout) : layout_(layout) {
    controlli_.reserve(layout.controlli.size());
    for (const Descrizione& d : layout.controlli) {
        controlli_.push_back(std::make_unique<Controllo>(*this, d));
        perNome_.emplace(std::pair(d.nome, d.indice), controlli_.back().get());
    }
}

Controllo* Controlli::cerca(std::string_view nome, int indice) {
    const auto trovato = perNome_.find({nome, indice});
    return trovato == perNome_.end() ? nullptr : trovato->second;
}

Controllo& Controlli::operator()(std::string_view nome, int indice) {
    if (Controllo* c = cerca(nome, indice))
        return *c;
    throw Guasto(guasti::kElementoMancante);
}

const Controllo& Controlli::operator()(std::string_view nome, int indice) const {
    return const_cast<Controlli&>(*this)(nome, indice);
}

} // namespace lumigrafo
