#pragma once

namespace lumigrafo {

/// How a list follows a finger: it moves with it, runs on when let go, and a touch that didn't move is a
/// click. Measures are pixels, times are milliseconds of any steady clock.
class Scorrimento {
public:
    /// `contenuto` is the whole height, `vista` what is seen of it. The position keeps within them.
    void misure(int contenuto, int vista);
    /// Height of the content above the view.
    [[nodiscard]] int posizione() const;
    /// Farthest position; 0 where all is seen.
    [[nodiscard]] int massimo() const;
    void vai(double posizione);

    /// The pointer goes down; a list that runs stops.
    void premi(int y, double adesso);
    /// The pointer moves while down. True once it drags the list.
    bool muovi(int y, double adesso);
    /// The pointer goes up. True if it was a click: it neither dragged nor stopped a running list.
    bool rilascia(double adesso);
    /// True while the list runs on by itself.
    [[nodiscard]] bool inMoto() const { return velocita_ != 0; }
    /// One step of that run.
    void passo(double adesso);

private:
    double posizione_ = 0;
    int contenuto_ = 0, vista_ = 0;
    double velocita_ = 0; ///< pixels a millisecond
    double ultimo_ = 0;
    int ySopra_ = 0, yPremuto_ = 0;
    bool premuto_ = false, trascina_ = false, fermato_ = false;
};

} // namespace lumigrafo
