#pragma once

#include "console/contesto.h"
#include "data/cls_recordset.h"

#include <cstdint>

namespace lumigrafo {

/// Fills the grids from the archive.
class Caricatore {
public:
    explicit Caricatore(ContestoConsole& contesto);

    /// Rebuilds the three grids from empty. A second entry, through the events that it lets through, returns
    /// at once. The argument, true from the timer and false from a button, changes nothing.
    void CaricaVideataInizio(bool periodica);
    /// The department of each quadrant, from its category.
    void CaricaCategorie();
    /// Opens `rsLumigrafo` on the queue, in order of letter and number.
    clsRecordset& ApriRsLumigrafo();
    void ChiudiRsLumigrafo();
    /// What the record sets of this console work with.
    [[nodiscard]] ContestoDati contestoDati();

private:
    void mostraNumeroCasse();
    void accettaTocchi();
    void riempiGriglie();
    void mostraPezzi();
    void ContaPezzi();

    ContestoConsole& c_;
    std::unique_ptr<clsRecordset> rsLumigrafo_;
    bool inCorso_ = false; ///< stays set where a failure stopped a rebuild: no other runs until a restart
};

} // namespace lumigrafo
