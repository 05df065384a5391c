#pragma once

#include "forms/descrizione.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The state of a window's controls, apart from any widget: what the logic reads and writes by name and
/// index. A view follows the changes; without a view it is all that a test needs.
namespace lumigrafo {

class Controllo;

/// What of a control changed.
enum class Aspetto {
    Testo,
    Geometria,
    Visibilita,
    Abilitazione,
    Carattere,
    Colori,
    Figura,
    Ordine, ///< brought to the front
    Fuoco,  ///< asked for the keyboard focus
    Voci,   ///< the items of a list
    Valore, ///< the position in a list, a check box's tick, a slider's place
};

/// How a picture fills its control.
enum class Adattamento {
    Intera,   ///< as large as fits, in its own proportions
    Stirata,  ///< over the whole control
    Naturale, ///< at its own size from the top left, cut off by the control
};

/// Follows the controls of one window; told of each change once it is made.
class OsservatoreControlli {
public:
    virtual ~OsservatoreControlli() = default;
    virtual void cambiato(const Controllo& controllo, Aspetto aspetto) = 0;
};

class Controlli;

/// One control. The names of its properties are those of the layouts. Geometry is in twips of the design; the
/// view scales it with the window, so that writing a position never depends on the window's present size.
class Controllo {
public:
    Controllo(Controlli& modulo, const Descrizione& disegno);

    [[nodiscard]] const Descrizione& disegno() const { return disegno_; }
    /// `nome` or `nome(indice)`: the name of its widget.
    [[nodiscard]] const std::string& NomeCompleto() const { return nomeCompleto_; }

    [[nodiscard]] const std::string& Caption() const { return caption_; }
    void Caption(std::string testo);
    [[nodiscard]] const Rettangolo& Posto() const { return rett_; }
    void Posto(const Rettangolo& rett);
    [[nodiscard]] Twip Left() const { return rett_.left; }
    [[nodiscard]] Twip Top() const { return rett_.top; }
    [[nodiscard]] Twip Width() const { return rett_.width; }
    [[nodiscard]] Twip Height() const { return rett_.height; }
    void Left(Twip v);
    void Top(Twip v);
    void Width(Twip v);
    void Height(Twip v);
    [[nodiscard]] bool Visible() const { return visibile_; }
    void Visible(bool v);
    [[nodiscard]] bool Enabled() const { return abilitato_; }
    void Enabled(bool v);
    [[nodiscard]] const std::string& FontName() const { return fontName_; }
    void FontName(std::string nome);
    /// Points at the window's design size.
    [[nodiscard]] double FontSize() const { return fontSize_; }
    void FontSize(double punti);
    [[nodiscard]] Colore ForeColor() const { return testo_; }
    void ForeColor(Colore c);
    /// None: transparent.
    [[nodiscard]] std::optional<Colore> BackColor() const { return sfondo_; }
    void BackColor(std::optional<Colore> c);
    /// The two colours of a shaded frame; a frame's `sfondo` gives the design value of both.
    [[nodiscard]] Colore Sfumatura1() const { return sfumatura1_; }
    [[nodiscard]] Colore Sfumatura2() const { return sfumatura2_; }
    void Sfumatura1(Colore c);
    void Sfumatura2(Colore c);
    /// Picture in the resources by its bare name, or a file's path, which has a separator; empty for none. A
    /// file is read at each assignment, and shown when it is decoded. A view throws Guasto 53 where there is
    /// no such file, 481 where it is no picture, at the assignment or, where only the decoding shows that,
    /// from the event loop; both name it.
    [[nodiscard]] const std::string& Figura() const { return figura_; }
    void Figura(std::string nome);
    [[nodiscard]] Adattamento Adatta() const { return adatta_; }
    void Adatta(Adattamento modo);
    /// What a stretched picture leaves free at the control's foot: twips of the screen, 15 to the pixel
    /// however large the window is.
    [[nodiscard]] Twip MargineFigura() const { return margineFigura_; }
    void MargineFigura(Twip v);
    /// The items of a list or drop-down list, from 0. `Clear` leaves no position.
    void Clear();
    void AddItem(std::string voce);
    /// All items at once: a view makes a long list anew for each single one. Leaves no position.
    void Voci(std::vector<std::string> voci);
    [[nodiscard]] const std::vector<std::string>& Voci() const { return voci_; }
    /// The chosen item; -1 for none.
    [[nodiscard]] int ListIndex() const { return valore_; }
    /// Throws Guasto 380 where the list has no such item, and chooses nothing.
    void ListIndex(int posizione);
    /// A check box's 0 or 1, a slider's place.
    [[nodiscard]] int Value() const { return valore_; }
    /// A check box takes anything but 0 as ticked; a slider takes the end of its range that is nearer.
    void Value(int valore);
    /// Brings the control in front of its siblings.
    void ZOrder();
    /// Gives it the keyboard focus, if it can take it now (visible and enabled, its window shown).
    void SetFocus();

private:
    void annuncia(Aspetto aspetto) const;
    template <typename T>
    void cambia(T& campo, T nuovo, Aspetto aspetto);

    Controlli& modulo_;
    const Descrizione& disegno_;
    std::string nomeCompleto_;
    std::string caption_;
    Rettangolo rett_;
    bool visibile_;
    bool abilitato_ = true;
    std::string fontName_;
    double fontSize_;
    Colore testo_;
    std::optional<Colore> sfondo_;
    Colore sfumatura1_, sfumatura2_;
    std::string figura_;
    Adattamento adatta_ = Adattamento::Intera;
    Twip margineFigura_;
    std::vector<std::string> voci_;
    int valore_; ///< position or value, by the kind of control
};

/// All controls of one window, from its layout. Not copied: views and logic hold references.
class Controlli {
public:
    explicit Controlli(const Layout& layout);
    Controlli(const Controlli&) = delete;
    Controlli& operator=(const Controlli&) = delete;

    [[nodiscard]] const Layout& layout() const { return layout_; }
    /// The control of that name and index. Throws Guasto 340 where the window has none.
    [[nodiscard]] Controllo& operator()(std::string_view nome, int indice = kSenzaIndice);
    [[nodiscard]] const Controllo& operator()(std::string_view nome, int indice = kSenzaIndice) const;
    /// The same, or null.
    [[nodiscard]] Controllo* cerca(std::string_view nome, int indice = kSenzaIndice);
    /// In order of creation, from back to front.
    [[nodiscard]] const std::vector<std::unique_ptr<Controllo>>& tutti() const { return controlli_; }

    /// The view that follows; null for none.
    void osserva(OsservatoreControlli* osservatore) { osservatore_ = osservatore; }

private:
    friend class Controllo;
    const Layout& layout_;
    std::vector<std::unique_ptr<Controllo>> controlli_;
    std::map<std::pair<std::string_view, int>, Controllo*> perNome_;
    OsservatoreControlli* osservatore_ = nullptr;
};

/// `nome(indice)`, or `nome` alone.
[[nodiscard]] std::string nomeCompleto(std::string_view nome, int indice);

} // namespace lumigrafo
