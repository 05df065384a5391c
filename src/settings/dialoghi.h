#pragma once

#include <string>

namespace lumigrafo {

/// The code that opens the settings and the archive's path. It can't be changed.
inline constexpr const char* CodiceAdmin = "81726";

/// The dialogs around the console. Each call shows one modally and returns when it is gone.
class Dialoghi {
public:
    virtual ~Dialoghi() = default;
    virtual void frmSpegni() = 0;
    virtual void frmDatabase() = 0;
    virtual void frmRipristina() = 0;
    virtual void frmInserisciNumeri() = 0;
    virtual void frmComunicazione() = 0;
    virtual void frmImposta() = 0;
    /// Looks for the second monitor and keeps its place for the board.
    virtual void frmSagoma() = 0;
    /// The fiscal component's own utilities.
    virtual void UtilitaFiscali() = 0;
    /// Asks for a code under a caption; true if the expected one was typed.
    virtual bool ChiediPassword(const std::string& messaggio, const std::string& attesa) = 0;
};

} // namespace lumigrafo
