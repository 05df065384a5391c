#pragma once

#include "console/stato.h"
#include "platform/pompa.h"

namespace lumigrafo {

/// The pump of the whole program, knowing about the scanner: while a scanned code is being worked on, whoever
/// lets events through leaves the keys in the queue. They are the next code's, and `txtBarCode` is emptied at
/// the end.
class PompaConsole final : public Pompa {
public:
    PompaConsole(Pompa& pompa, const StatoConsole& stato) : pompa_(pompa), stato_(stato) {}
    void cedi(std::string_view punto, Ammessi ammessi = Ammessi::Tutti) override {
        pompa_.cedi(punto, stato_.BarCodeInCorso ? Ammessi::SenzaTastiera : ammessi);
    }

private:
    Pompa& pompa_;
    const StatoConsole& stato_;
};

} // namespace lumigrafo
