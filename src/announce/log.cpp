#include "announce/log.h"

#include "platform/guasto.h"

#include <fstream>
#include <utility>

namespace lumigrafo {

namespace {

std::string dueCifre(int numero) {
    return (numero < 10 ? "0" : "") + std::to_string(numero);
}

std::string quattroCifre(int numero) {
    const std::string cifre = std::to_string(numero);
    return std::string(cifre.size() < 4 ? 4 - cifre.size() : 0, '0') + cifre;
}

/// The file open for a line. Throws Guasto where it can't be.
std::ofstream apri(const std::filesystem::path& file, std::ios::openmode modo) {
    std::ofstream f(file, modo);
    if (f)
        return f;
    std::error_code ignorato;
    throw Guasto(std::filesystem::is_directory(file.parent_path(), ignorato) ? guasti::kAccesso
                                                                             : guasti::kPercorso);
}

void scriviRiga(std::ofstream f, const std::string& riga) {
    f << riga << '\n';
    f.close(); // the line leaves the program here: a full disk shows now
    if (!f)
        throw Guasto(guasti::kErroreIO);
}

} // namespace

RegistroLog::RegistroLog(std::filesystem::path cartella, Orologio& orologio)
    : cartella_(std::move(cartella)), orologio_(orologio) {}

std::filesystem::path RegistroLog::fileDiOra() const {
    const DataOra ora = orologio_.adesso();
    return cartella_ / ("loglumigrafo_" + dueCifre(ora.data.giorno) + dueCifre(ora.data.mese) +
                        quattroCifre(ora.data.anno) + "_" + dueCifre(ora.ora) + ".txt");
}

void RegistroLog::ScriviLog(const std::string& messaggio) {
    std::ofstream f;
    if (!ignorandoGuasti([&] { f = apri(fileDiOra(), std::ios::app); }))
        f = apri(fileDiOra(), std::ios::trunc);
    scriviRiga(std::move(f), testoOra(orologio_.adesso()) + "  " + messaggio);
}

void RegistroLog::ScriviLogConnessioni(const std::string& messaggio) {
    scriviRiga(apri(cartella_ / kFileLogConnessioni, std::ios::app), messaggio);
}

void RegistroLog::ScriviLogVoce(const std::string& testo) {
    scriviRiga(apri(cartella_ / kFileLogVoce, std::ios::app), testo);
}

} // namespace lumigrafo
