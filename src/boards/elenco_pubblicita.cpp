#include "boards/elenco_pubblicita.h"

#include "boards/percorsi.h"
#include "platform/conversioni.h"

#include <string>
#include <system_error>

namespace lumigrafo {

namespace fs = std::filesystem;

namespace {

bool ePubblicita(const fs::path& file) {
    const std::string nome = minuscolo(testoUtf8(file.filename()));
    return nome.starts_with("pubblicita") && nome.ends_with(".jpg");
}

bool eFile(const fs::path& file) {
    std::error_code ignorato;
    return fs::is_regular_file(file, ignorato);
}

} // namespace

std::vector<fs::path> ElencoPubblicita::elenca() const {
    std::vector<fs::path> trovati;
    std::error_code errore;
    fs::directory_iterator voce(cartella_, errore);
    for (; !errore && voce != fs::directory_iterator(); voce.increment(errore))
        if (ePubblicita(voce->path()) && eFile(voce->path()))
            trovati.push_back(voce->path());
    return trovati;
}

fs::path ElencoPubblicita::prossimo() {
    if (FileCorrente.empty()) {
        elenco_ = elenca();
        prossimo_ = 0;
    }
    FileCorrente.clear();
    while (FileCorrente.empty() && prossimo_ < elenco_.size())
        if (const fs::path& file = elenco_[prossimo_++]; eFile(file))
            FileCorrente = file;
    return FileCorrente;
}

} // namespace lumigrafo
