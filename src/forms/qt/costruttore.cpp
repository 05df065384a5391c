#include "forms/qt/costruttore.h"

#include "forms/qt/bottone.h"
#include "forms/qt/casella.h"
#include "forms/qt/casella_righe.h"
#include "forms/qt/combo.h"
#include "forms/qt/cursore.h"
#include "forms/qt/etichetta.h"
#include "forms/qt/griglia_widget.h"
#include "forms/qt/gruppo.h"
#include "forms/qt/immagine.h"
#include "forms/qt/lista.h"
#include "forms/qt/riquadro.h"
#include "forms/qt/spunta.h"
#include "forms/qt/tastiera_widget.h"

namespace lumigrafo {

namespace {

template <typename W>
Costruito superficie(Controllo& c, QWidget* padre, const Segnali& segnali) {
    auto* w = new W(c, padre);
    w->alClic([&c, &segnali] { segnali.clic(c); });
    w->alClicDestro([&c, &segnali] { segnali.clicDestro(c); });
    return {w, w};
}

Costruito immagine(Controllo& c, QWidget* padre, const Segnali& segnali) {
    Costruito fatto = superficie<ImmagineWidget>(c, padre, segnali);
    fatto.carica = [w = static_cast<ImmagineWidget*>(fatto.widget), &c] { w->carica(c); };
    return fatto;
}

Costruito bottone(Controllo& c, QWidget* padre, const Segnali& segnali) {
    auto* w = new BottoneWidget(padre);
    QObject::connect(w, &QAbstractButton::clicked, w, [&c, &segnali] { segnali.clic(c); });
    return {w, w, [w, &c] { w->carica(c); }};
}

Costruito casella(Controllo& c, QWidget* padre, const Segnali& segnali) {
    auto* w = new CasellaWidget(padre);
    if (const int massima = c.disegno().lunghezzaMassima)
        w->setMaxLength(massima);
    QObject::connect(w, &QLineEdit::textEdited, w,
                     [&c, &segnali](const QString& testo) { segnali.testo(c, testo.toStdString()); });
    return {w, w};
}

Costruito casellaRighe(Controllo& c, QWidget* padre, const Segnali& segnali) {
    auto* w = new CasellaRigheWidget(padre);
    QObject::connect(w, &QPlainTextEdit::textChanged, w, [w, &c, &segnali] {
        if (!w->inMostra())
            segnali.testo(c, w->testo());
    });
    return {w, w};
}

/// `segnale` tells of the operator's choice alone: what the logic sets is blocked by the widget.
template <typename W, typename S>
Costruito conValore(Controllo& c, QWidget* padre, const Segnali& segnali, S segnale) {
    auto* w = new W(c, padre);
    QObject::connect(w, segnale, w, [&c, &segnali](int valore) { segnali.valore(c, valore); });
    return {w, w};
}

Costruito lista(Controllo& c, QWidget* padre, const Segnali& segnali) {
    Costruito fatto = conValore<ListaWidget>(c, padre, segnali, &QListWidget::currentRowChanged);
    QObject::connect(static_cast<ListaWidget*>(fatto.widget), &QListWidget::itemClicked, fatto.widget,
                     [&c, &segnali] { segnali.clic(c); });
    return fatto;
}

Costruito tastiera(Tastiera::Forma forma, QWidget* padre) {
    auto* w = new TastieraWidget(forma, padre);
    return {w, w};
}

Costruito griglia(QWidget* padre) {
    auto* w = new GrigliaWidget(padre);
    return {w, w};
}

} // namespace

Costruito costruisci(Controllo& c, QWidget* padre, const Segnali& segnali) {
    switch (c.disegno().tipo) {
    case Tipo::Etichetta:
        return superficie<EtichettaWidget>(c, padre, segnali);
    case Tipo::Riquadro:
        return superficie<RiquadroWidget>(c, padre, segnali);
    case Tipo::Cornice:
        return superficie<CorniceWidget>(c, padre, segnali);
    case Tipo::Immagine:
        return immagine(c, padre, segnali);
    case Tipo::Bottone:
        return bottone(c, padre, segnali);
    case Tipo::Casella:
        return casella(c, padre, segnali);
    case Tipo::Righe:
        return casellaRighe(c, padre, segnali);
    case Tipo::Tastiera:
        return tastiera(Tastiera::Forma::Completa, padre);
    case Tipo::Numerica:
        return tastiera(Tastiera::Forma::Numerica, padre);
    case Tipo::Griglia:
        return griglia(padre);
    case Tipo::Linea:
        return superficie<LineaWidget>(c, padre, segnali);
    case Tipo::Combo:
        return conValore<ComboWidget>(c, padre, segnali, &QComboBox::currentIndexChanged);
    case Tipo::Lista:
        return lista(c, padre, segnali);
    case Tipo::Spunta:
        return conValore<SpuntaWidget>(c, padre, segnali, &QAbstractButton::toggled);
    case Tipo::Cursore:
        return conValore<CursoreWidget>(c, padre, segnali, &QSlider::valueChanged);
    case Tipo::Gruppo:
        return superficie<GruppoWidget>(c, padre, segnali);
    }
    return {};
}

} // namespace lumigrafo
