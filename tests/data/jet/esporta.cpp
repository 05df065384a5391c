#include "tests/data/jet/esporta.h"

#include "data/jet/catalogo.h"
#include "data/jet/dato.h"
#include "data/jet/riga.h"
#include "data/jet/scansione.h"
#include "data/jet/testo.h"
#include "data/jet/valore_lungo.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <sstream>

namespace lumigrafo::prova {

namespace {

using jet::Colonna;
using jet::Tipo;

/// mdb-export tells an empty text from a null in no way.
std::string traVirgolette(const std::string& t) {
    if (t.empty())
        return t;
    std::string s = "\"";
    for (const char c : t)
        s.append(c == '"' ? 2 : 1, c);
    return s + '"';
}

std::string esadecimale(const std::string& byte) {
    std::string s;
    std::array<char, 3> due{};
    for (const char c : byte) {
        std::snprintf(due.data(), due.size(), "%02X", static_cast<unsigned char>(c));
        s += due.data();
    }
    return traVirgolette(s);
}

std::string conCifre(double n, int cifre) {
    std::array<char, 64> t{};
    if (n == std::floor(n) && std::abs(n) < 1e9)
        std::snprintf(t.data(), t.size(), "%.0f", n);
    else
        std::snprintf(t.data(), t.size(), "%.*e", cifre, n);
    return t.data();
}

std::string data(double giorni) {
    const double secondi = (jet::giorniContinui(giorni) - 25569) * 86400;
    if (!(std::abs(secondi) < 1e11)) // no date; only damaged files have such
        return "\"\"";
    const auto intero = static_cast<std::time_t>(std::llround(secondi));
    std::array<char, 32> t{};
    std::strftime(t.data(), t.size(), "\"%Y-%m-%d %H:%M:%S\"", std::gmtime(&intero));
    return t.data();
}

std::string campo(jet::Pagine& pagine, const Colonna& c, const jet::Riga& riga) {
    if (c.tipo == Tipo::Booleano)
        return riga.nulla(c) ? "0" : "1";
    if (riga.nulla(c))
        return "";
    const jet::Vista v = riga.valore(c);
    if (c.tipo == Tipo::Ole)
        return esadecimale(leggiValoreLungo(pagine, v));
    if (c.tipo == Tipo::Memo) {
        const std::string t = leggiValoreLungo(pagine, v);
        return traVirgolette(
            jet::leggiTesto({{reinterpret_cast<const std::uint8_t*>(t.data()), t.size()}, v.pagina()}));
    }
    const jet::Dato d = leggiDato(c, v);
    if (const auto* i = std::get_if<std::int64_t>(&d))
        return std::to_string(*i);
    if (const auto* b = std::get_if<jet::Byte>(&d))
        return esadecimale(b->byte);
    if (const auto* t = std::get_if<std::string>(&d))
        return c.tipo == Tipo::Testo || c.tipo == Tipo::Guid ? traVirgolette(*t) : *t;
    const double n = std::get<double>(d);
    std::array<char, 64> t{};
    switch (c.tipo) {
    case Tipo::Data:
        return data(n);
    case Tipo::Valuta:
        std::snprintf(t.data(), t.size(), "%.4f", n);
        return t.data();
    default:
        return conCifre(n, c.tipo == Tipo::Singolo ? 8 : 16);
    }
}

} // namespace

std::string esporta(jet::Pagine& pagine, const std::string& tabella) {
    for (const auto& voce : jet::leggiCatalogo(pagine)) {
        if (!jet::stessoNome(voce.nome, tabella) || voce.definizione == 0)
            continue;
        const jet::Definizione d = leggiDefinizione(pagine, voce.definizione);
        std::string righe;
        for (const auto& trovata : scorri(pagine, d)) {
            const jet::Riga riga(d, trovata.riga.byte);
            for (std::size_t i = 0; i < d.colonne.size(); ++i)
                righe += (i ? "," : "") + campo(pagine, d.colonne[i], riga);
            righe += '\n';
        }
        return righe;
    }
    return "no such table";
}

std::string mdbExport(const std::string& file, const std::string& tabella) {
    const std::string comando =
        "mdb-export -H -b hex -T '%Y-%m-%d %H:%M:%S' '" + file + "' '" + tabella + "' 2>/dev/null";
    std::string uscita;
    std::FILE* tubo = ::popen(comando.c_str(), "r");
    std::array<char, 4096> pezzo{};
    for (std::size_t n = 0; tubo && (n = std::fread(pezzo.data(), 1, pezzo.size(), tubo)) > 0;)
        uscita.append(pezzo.data(), n);
    if (tubo)
        ::pclose(tubo);
    return uscita;
}

std::vector<std::vector<Valore>> valori(Database& db, const std::string& sorgente) {
    std::vector<std::vector<Valore>> righe;
    for (const auto rs = db.OpenRecordset(sorgente); !rs->Eof(); rs->MoveNext()) {
        righe.emplace_back();
        for (const Field& campo : rs->Fields().tutti())
            righe.back().push_back(campo.Value());
    }
    return righe;
}

std::string perNome(Database& db, const std::string& tabella) {
    std::string sql;
    const auto rs = db.OpenRecordset(tabella);
    for (const Field& campo : rs->Fields().tutti())
        sql += (sql.empty() ? "Select [" : ", [") + campo.Name() + ']';
    return sql + " from [" + tabella + ']';
}

std::vector<std::string> righeOrdinate(const std::string& testo) {
    std::istringstream righe(testo);
    std::vector<std::string> v;
    for (std::string riga; std::getline(righe, riga);)
        v.push_back(riga);
    std::sort(v.begin(), v.end());
    return v;
}

} // namespace lumigrafo::prova
