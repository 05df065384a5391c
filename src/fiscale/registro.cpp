#include "fiscale/registro.h"

#include "platform/conversioni.h"
#include "platform/file.h"
#include "platform/guasto.h"

#include <algorithm>
#include <array>
#include <sstream>

namespace lumigrafo {

namespace {

constexpr std::array<const char*, 3> kFini{"FATTO", "NON STAMPATO", "INCERTO"};
constexpr const char* kInterrotto = "La stampa è stata interrotta.";
constexpr std::size_t kCampi = 8;

std::string dueCifre(int n) {
    return (n < 10 ? "0" : "") + std::to_string(n);
}

std::string momento(const DataOra& o) {
    return std::to_string(o.data.anno) + "-" + dueCifre(o.data.mese) + "-" + dueCifre(o.data.giorno) + " " +
           dueCifre(o.ora) + ":" + dueCifre(o.minuto) + ":" + dueCifre(o.secondo);
}

/// One field of a line.
std::string campo(std::string testo) {
    std::replace_if(
        testo.begin(), testo.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    return testo;
}

std::string riga(const VoceRegistro& v) {
    std::string tutto;
    for (const std::string& c : {v.quando, std::to_string(v.id), std::to_string(v.dataCompetenza), v.sigla,
                                 v.numero, v.importo ? std::to_string(*v.importo) : std::string(),
                                 std::string(kFini[static_cast<std::size_t>(v.fine)]), v.testo})
        tutto += (tutto.empty() ? "" : "\t") + campo(c);
    return tutto;
}

std::optional<VoceRegistro> voce(const std::string& riga) {
    std::vector<std::string> c;
    std::istringstream in(riga);
    for (std::string uno; std::getline(in, uno, '\t');)
        c.push_back(uno);
    c.resize(std::max(c.size(), kCampi));
    const auto fine = std::find(kFini.begin(), kFini.end(), c[6]);
    VoceRegistro v{c[0], 0, 0, c[3], c[4], std::nullopt, Fine::Incerto, c[7]};
    const bool letta = fine != kFini.end() && ignorandoGuasti([&] {
                           v.id = aIntero32(c[1]);
                           v.dataCompetenza = aIntero32(c[2]);
                           if (!c[5].empty())
                               v.importo = static_cast<Centesimi>(aDoppio(c[5]));
                       });
    if (!letta)
        return std::nullopt;
    v.fine = static_cast<Fine>(fine - kFini.begin());
    return v;
}

bool stessoTentativo(const VoceRegistro& a, const VoceRegistro& b) {
    return a.quando == b.quando && a.id == b.id;
}

} // namespace

std::vector<VoceRegistro> RegistroScontrini::voci() const {
    std::vector<VoceRegistro> tutte;
    std::istringstream in(leggiFile(file_).value_or(""));
    for (std::string r; std::getline(in, r);)
        if (auto v = voce(r))
            tutte.push_back(std::move(*v));
    return tutte;
}

bool RegistroScontrini::giaFatto(const Scontrino& s) const {
    const auto tutte = voci();
    return std::any_of(tutte.begin(), tutte.end(), [&](const VoceRegistro& v) {
        return v.fine == Fine::Fatto && v.id == s.id && v.dataCompetenza == s.dataCompetenza &&
               v.sigla == s.sigla && v.numero == s.numero && v.importo == s.importo();
    });
}

VoceRegistro RegistroScontrini::inizia(const Scontrino& s) {
    VoceRegistro v{momento(orologio_.adesso()),
                   s.id,
                   s.dataCompetenza,
                   s.sigla,
                   s.numero,
                   s.importo(),
                   Fine::Incerto,
                   kInterrotto};
    scrivi(v);
    return v;
}

void RegistroScontrini::conclude(VoceRegistro voce, const EsitoStampa& esito) {
    voce.fine = esito.fine;
    voce.testo = esito.testo;
    scrivi(voce);
}

void RegistroScontrini::scrivi(const VoceRegistro& voce) {
    const BloccoCartella blocco(file_.parent_path());
    auto tutte = voci();
    if (!tutte.empty() && stessoTentativo(tutte.front(), voce))
        tutte.front() = voce;
    else
        tutte.insert(tutte.begin(), voce);
    tutte.resize(std::min(tutte.size(), kVoci));
    std::string testo;
    for (const VoceRegistro& v : tutte)
        testo += riga(v) + "\n";
    static_cast<void>(sostituisciFile(file_, testo));
}

} // namespace lumigrafo
