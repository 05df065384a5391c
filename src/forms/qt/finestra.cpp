#include "forms/qt/finestra.h"

#include "forms/qt/casella.h"
#include "forms/qt/griglia_widget.h"
#include "platform/guasto.h"
#include "platform/qt/aspetto.h"
#include "platform/qt/caratteri.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace lumigrafo {

namespace {

/// Rounding of corners, in points at the design.
constexpr double kRaggioPunti = 5;

QString testo(std::string_view s) {
    return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size()));
}

bool tocca(Aspetto aspetto) {
    return aspetto == Aspetto::Testo || aspetto == Aspetto::Carattere || aspetto == Aspetto::Colori ||
           aspetto == Aspetto::Figura || aspetto == Aspetto::Voci || aspetto == Aspetto::Valore;
}

} // namespace

Finestra::Finestra(Controlli& controlli, QWidget* padre, Qt::WindowFlags modi)
    : QWidget(padre, modi), controlli_(controlli), sfondo_(controlli.layout().sfondo) {
    const Layout& l = controlli_.layout();
    setObjectName(testo(l.nome));
    setWindowTitle(testo(l.titolo));
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    segnali_.clic = [this](const Controllo& c) {
        if (const auto azione = clic_)
            azione(c);
    };
    segnali_.clicDestro = [this](const Controllo& c) {
        if (const auto azione = clicDestro_)
            azione(c);
    };
    segnali_.testo = [this](Controllo& c, std::string nuovo) {
        c.Caption(std::move(nuovo));
        if (const auto azione = testo_)
            azione(c);
    };
    segnali_.valore = [this](Controllo& c, int nuovo) {
        if (c.disegno().tipo == Tipo::Combo || c.disegno().tipo == Tipo::Lista)
            c.ListIndex(nuovo);
        else
            c.Value(nuovo);
        if (const auto azione = valore_)
            azione(c);
    };
    resize(aPixel(l.larghezza).v, aPixel(l.altezza).v);
    costruisciTutti();
    disponi();
    controlli_.osserva(this);
    // One filter for the program instead of one a child: keys are met first whatever widget has the focus.
    QCoreApplication::instance()->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, const QWidget* nuovo) {
        const auto azione = fuoco_;
        if (azione && nuovo && nuovo->window() == window())
            azione(conFuoco());
    });
}

Finestra::~Finestra() {
    disconnect(qApp, nullptr, this, nullptr); // the widgets lose the focus after the hooks are gone
    controlli_.osserva(nullptr);
}

void Finestra::costruisciTutti() {
    std::unordered_map<std::string_view, QWidget*> perNome{{"", this}};
    for (const auto& c : controlli_.tutti()) {
        const auto padre = perNome.find(c->disegno().padre);
        if (padre == perNome.end())
            throw Guasto(guasti::kElementoMancante);
        Costruito fatto = costruisci(*c, padre->second, segnali_);
        fatto.widget->setObjectName(testo(c->NomeCompleto()));
        fatto.widget->setMouseTracking(true);
        fatto.widget->setVisible(c->Visible());
        fatto.widget->setEnabled(c->Enabled());
        nomina(*c, *fatto.widget);
        perNome.emplace(c->NomeCompleto(), fatto.widget);
        if (fatto.carica)
            fatto.carica();
        viste_.emplace(c.get(), std::move(fatto));
    }
}

Scala Finestra::scala() const {
    return {controlli_.layout(), width(), height()};
}

void Finestra::disponi() {
    const Scala s = scala();
    for (const auto& c : controlli_.tutti()) {
        const Costruito& fatto = viste_.at(c.get());
        colloca(*c, fatto, s);
        mostra(*c, fatto, s);
    }
}

void Finestra::colloca(const Controllo& c, const Costruito& fatto, const Scala& s) {
    RettangoloPixel r = s.rettangolo(c.Posto());
    if (c.disegno().tipo == Tipo::Linea) {
        r.larghezza = std::max(r.larghezza, 1);
        r.altezza = std::max(r.altezza, 1);
    }
    fatto.widget->setGeometry(r.x, r.y, r.larghezza, r.altezza);
}

void Finestra::mostra(const Controllo& c, const Costruito& fatto, const Scala& s) {
    const Carattere& disegno = c.disegno().carattere;
    fatto.vista->mostra(
        c, {s, carattere(testo(c.FontName()), s.carattere(c.FontSize()), disegno.grassetto, disegno.corsivo),
            s.carattere(kRaggioPunti)});
}

void Finestra::nomina(const Controllo& c, QWidget& w) const {
    const Descrizione& d = c.disegno();
    const bool contenuto =
        d.tipo == Tipo::Casella || d.tipo == Tipo::Righe; // its caption is what was typed, not what it is
    QString nome = testo(d.nomeAccessibile);
    if (nome.isEmpty() && !contenuto)
        nome = testo(c.Caption());
    else if (!contenuto)
        w.setAccessibleDescription(testo(c.Caption()));
    w.setAccessibleName(nome.isEmpty() ? testo(c.NomeCompleto()) : nome);
}

void Finestra::cambiato(const Controllo& c, Aspetto aspetto) {
    const Costruito& fatto = viste_.at(&c);
    QWidget& w = *fatto.widget;
    if (aspetto == Aspetto::Testo)
        nomina(c, w);
    if (aspetto == Aspetto::Figura && fatto.carica)
        fatto.carica();
    if (tocca(aspetto))
        mostra(c, fatto, scala());
    switch (aspetto) {
    case Aspetto::Geometria:
        colloca(c, fatto, scala());
        break;
    case Aspetto::Visibilita:
        w.setVisible(c.Visible());
        w.update(); // a show alone leaves the painting to a later turn of the loop
        break;
    case Aspetto::Abilitazione:
        w.setEnabled(c.Enabled());
        break;
    case Aspetto::Ordine:
        w.raise();
        break;
    case Aspetto::Fuoco:
        if (w.isEnabled() && w.isVisible())
            prendiFuoco(w);
        break;
    default:
        break;
    }
}

/// The focus of a window that lies behind another is of no use: on a station with one monitor the board
/// stands over the console, also over an active one, since the board comes up without being activated.
void Finestra::prendiFuoco(QWidget& w) {
    w.setFocus(Qt::OtherFocusReason);
    if (auto* casella = dynamic_cast<CasellaWidget*>(&w))
        casella->accogli();
    if (QApplication::activeModalWidget())
        return;
    window()->raise();
    if (!window()->isActiveWindow())
        window()->activateWindow();
}

QWidget* Finestra::widget(std::string_view nome, int indice) const {
    const Controllo* c = controlli_.cerca(nome, indice);
    return c ? viste_.at(c).widget : nullptr;
}

const Controllo* Finestra::conFuoco() const {
    const QWidget* w = QApplication::focusWidget();
    const auto trovata = std::find_if(viste_.begin(), viste_.end(),
                                      [w](const auto& vista) { return vista.second.widget == w; });
    return trovata == viste_.end() ? nullptr : trovata->first;
}

GrigliaWidget& Finestra::collegaGriglia(std::string_view nome, int indice, Griglia& griglia) {
    auto* w = dynamic_cast<GrigliaWidget*>(widget(nome, indice));
    if (!w)
        throw Guasto(guasti::kElementoMancante);
    w->collega(griglia);
    return *w;
}

void Finestra::sfondo(Colore c) {
    sfondo_ = c;
    update();
}

void Finestra::ridisegna() {
    // Not repaint(): it would leave out what an opaque child covers.
    QCoreApplication::sendPostedEvents(window(), QEvent::UpdateRequest);
}

void Finestra::resizeEvent(QResizeEvent*) {
    disponi();
}

void Finestra::paintEvent(QPaintEvent* evento) {
    QPainter(this).fillRect(evento->rect(), aspetto::colore(sfondo_));
}

void Finestra::mouseDoubleClickEvent(QMouseEvent* evento) {
    const QWidget* sotto = childAt(evento->position().toPoint());
    bool sfondo = !sotto;
    for (const auto& [c, fatto] : viste_)
        sfondo = sfondo || (fatto.widget == sotto && c->disegno().tipo == Tipo::Immagine);
    const auto azione = doppioClic_;
    if (sfondo && azione)
        azione();
}

bool Finestra::tasto(const QKeyEvent& evento) {
    if (&evento == ultimoTasto_)
        return false;
    const auto azione = tasto_;
    const bool preso = azione && azione(evento);
    ultimoTasto_ = preso ? nullptr : &evento;
    return preso;
}

bool Finestra::eventFilter(QObject* oggetto, QEvent* evento) {
    const QEvent::Type tipo = evento->type();
    const bool diTutti = tipo == QEvent::KeyPress || tipo == QEvent::KeyRelease ||
                         tipo == QEvent::ShortcutOverride || tipo == QEvent::MouseMove;
    const bool dellaFinestra = tipo == QEvent::Close || tipo == QEvent::WindowActivate;
    if ((!diTutti && !dellaFinestra) || !oggetto->isWidgetType())
        return false;
    const QWidget* w = static_cast<QWidget*>(oggetto);
    if (w->window() != window() || (dellaFinestra && w != window()))
        return false;
    switch (tipo) {
    case QEvent::KeyPress:
        return tasto(*static_cast<QKeyEvent*>(evento));
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
        ultimoTasto_ = nullptr; // a new key may lie at the old one's address
        return false;
    case QEvent::MouseMove:
        if (const auto azione = movimento_)
            azione();
        return false;
    case QEvent::Close:
        if (const auto azione = chiusura_; azione && !azione()) {
            evento->ignore();
            return true;
        }
        return false;
    default:
        if (const auto azione = attivazione_)
            azione();
        return false;
    }
}

} // namespace lumigrafo
