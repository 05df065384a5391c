#pragma once

#include "forms/controlli.h"
#include "forms/griglia.h"
#include "forms/qt/costruttore.h"

#include <QWidget>

#include <functional>
#include <unordered_map>

class QKeyEvent;

namespace lumigrafo {

class GrigliaWidget;

/// A layout on the screen: builds the widgets of a window's controls, follows their changes, and scales
/// position, size and type with its own size, always from the design. It is a window of its own or the
/// content of another one, such as a QMainWindow with a menu; the hooks for keys, close and activation then
/// are those of that window.
///
/// Its objectName is the layout's name, those of its widgets the controls' full names: `lblNumero3(1)`.
///
/// Hooks run inside the event that they tell of. One may close the window or `deleteLater()` it, but not
/// delete it.
class Finestra : public QWidget, private OsservatoreControlli {
public:
    using SuControllo = std::function<void(const Controllo&)>;

    /// `controlli` must outlive the window, which is its only observer. The first size is the design's, 15
    /// twips to the pixel. Throws as Figura::carica where a control names a file that is no picture.
    explicit Finestra(Controlli& controlli, QWidget* padre = nullptr, Qt::WindowFlags modi = {});
    ~Finestra() override;

    [[nodiscard]] Controlli& controlli() { return controlli_; }
    /// Null where the window has no such control.
    [[nodiscard]] QWidget* widget(std::string_view nome, int indice = kSenzaIndice) const;
    /// The grid shows that model from now on; the model must outlive the window. Throws Guasto 340 where the
    /// window has no such grid.
    GrigliaWidget& collegaGriglia(std::string_view nome, int indice, Griglia& griglia);
    /// Lays all controls out anew for the present size.
    void ridisponi() { disponi(); }
    /// Paints at once what has changed since the last painting, and no more.
    void ridisegna();
    /// The window's own back colour.
    void sfondo(Colore c);

    /// A button, an item of a list, or a label, box or picture that the layout makes clickable.
    void alClic(SuControllo azione) { clic_ = std::move(azione); }
    /// The same with the right button: on a label, box or picture that takes clicks.
    void alClicDestro(SuControllo azione) { clicDestro_ = std::move(azione); }
    /// The focus went to another control of this window; null where none has it now.
    void alFuoco(std::function<void(const Controllo*)> azione) { fuoco_ = std::move(azione); }
    /// The control that has the focus, or null.
    [[nodiscard]] const Controllo* conFuoco() const;
    /// The operator typed into a text box; the control's caption has the new text already.
    void alCambioTesto(SuControllo azione) { testo_ = std::move(azione); }
    /// The operator chose in a list, ticked a box or moved a slider; the control has the new value already.
    void alCambioValore(SuControllo azione) { valore_ = std::move(azione); }
    /// A double click on the window itself or on a picture of its background.
    void alDoppioClicSfondo(std::function<void()> azione) { doppioClic_ = std::move(azione); }
    /// The pointer moved anywhere over the window; told again for each container that the movement climbs to.
    void alMovimentoPuntatore(std::function<void()> azione) { movimento_ = std::move(azione); }
    /// The window is about to close; false keeps it open.
    void allaChiusura(std::function<bool()> azione) { chiusura_ = std::move(azione); }
    /// The window became the active one.
    void allaAttivazione(std::function<void()> azione) { attivazione_ = std::move(azione); }
    /// A key was pressed, whatever has the focus, before the focus sees it; true keeps the key from it.
    void alTasto(std::function<bool(const QKeyEvent&)> azione) { tasto_ = std::move(azione); }

    bool eventFilter(QObject* oggetto, QEvent* evento) override;

protected:
    void resizeEvent(QResizeEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;

private:
    void cambiato(const Controllo& controllo, Aspetto aspetto) override;
    void costruisciTutti();
    void disponi();
    void colloca(const Controllo& c, const Costruito& fatto, const Scala& scala);
    void mostra(const Controllo& c, const Costruito& fatto, const Scala& scala);
    void prendiFuoco(QWidget& w);
    void nomina(const Controllo& c, QWidget& w) const;
    [[nodiscard]] Scala scala() const;
    bool tasto(const QKeyEvent& evento);

    Controlli& controlli_;
    Colore sfondo_;
    Segnali segnali_;
    std::unordered_map<const Controllo*, Costruito> viste_;
    SuControllo clic_, clicDestro_, testo_, valore_;
    std::function<void(const Controllo*)> fuoco_;
    std::function<void()> doppioClic_, movimento_, attivazione_;
    std::function<bool()> chiusura_;
    std::function<bool(const QKeyEvent&)> tasto_;
    const QEvent* ultimoTasto_ =
        nullptr; ///< seen already; it comes again for each container that it climbs to
};

} // namespace lumigrafo
