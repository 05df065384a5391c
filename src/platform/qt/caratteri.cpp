#include "platform/qt/caratteri.h"

#include <QFontDatabase>
#include <QHash>

#include <algorithm>
#include <initializer_list>
#include <optional>

namespace lumigrafo {

namespace {

struct Scelta {
    QString famiglia;
    std::optional<QFont::Weight> peso; ///< none: what the layout asks for
};

struct Candidato {
    const char* famiglia;
    std::optional<QFont::Weight> peso{};
};

struct Ripiego {
    const char* nome;
    std::initializer_list<Candidato> candidati;
};

// The first installed one is taken.
const std::initializer_list<Candidato> kPesanti{{"Roboto", QFont::Black},
                                                {"Lato", QFont::Black},
                                                {"Open Sans", QFont::ExtraBold},
                                                {"DejaVu Sans", QFont::Bold}};
const std::initializer_list<Candidato> kPiani{{"Liberation Sans"}, {"DejaVu Sans"}};
const std::initializer_list<Ripiego> kRipieghi{
    {"Arial Black", kPesanti},
    {"Franklin Gothic Heavy", kPesanti},
    {"Franklin Gothic Medium Cond",
     {{"Liberation Sans Narrow", QFont::Bold},
      {"Roboto Condensed", QFont::Bold},
      {"DejaVu Sans", QFont::Bold}}},
    {"Arial", kPiani},
    {"Arial Narrow", {{"Liberation Sans Narrow"}, {"Roboto Condensed"}, {"Liberation Sans"}}},
    {"Courier New", {{"Liberation Mono"}, {"DejaVu Sans Mono"}}},
    {"Times New Roman", {{"Liberation Serif"}, {"DejaVu Serif"}}},
    {"Verdana", {{"DejaVu Sans"}, {"Liberation Sans"}}},
    {"Comic Sans MS", {{"Comic Neue"}, {"Liberation Sans"}}},
};

/// Looked up in the list of all: asked for a single name, the font system works out what it would put in its
/// place, which is slow.
bool installato(const QString& nome) {
    static const QStringList famiglie = QFontDatabase::families();
    return std::any_of(famiglie.begin(), famiglie.end(), [&](const QString& famiglia) {
        return famiglia.compare(nome, Qt::CaseInsensitive) == 0 ||
               famiglia.startsWith(nome + QLatin1String(" ["), Qt::CaseInsensitive); // one of several makers
    });
}

std::optional<Scelta> primoInstallato(const std::initializer_list<Candidato>& candidati) {
    for (const Candidato& c : candidati)
        if (const auto famiglia = QString::fromLatin1(c.famiglia); installato(famiglia))
            return Scelta{famiglia, c.peso};
    return std::nullopt;
}

Scelta scegli(const QString& nome) {
    if (installato(nome))
        return {nome, {}};
    const auto* ripiego = std::find_if(kRipieghi.begin(), kRipieghi.end(), [&](const Ripiego& r) {
        return nome.compare(QLatin1String(r.nome), Qt::CaseInsensitive) == 0;
    });
    if (ripiego != kRipieghi.end())
        if (auto scelta = primoInstallato(ripiego->candidati))
            return *scelta;
    return primoInstallato(kPiani).value_or(
        Scelta{QFontDatabase::systemFont(QFontDatabase::GeneralFont).family(), {}});
}

} // namespace

QFont carattere(const QString& nome, int pixel, bool grassetto, bool corsivo) {
    static QHash<QString, Scelta> scelte; // asking the font database is slow, and windows ask at each resize
    auto trovata = scelte.find(nome);
    if (trovata == scelte.end())
        trovata = scelte.insert(nome, scegli(nome));
    QFont f(trovata->famiglia);
    f.setStyleHint(QFont::SansSerif);
    f.setPixelSize(std::max(1, pixel));
    f.setWeight(trovata->peso.value_or(grassetto ? QFont::Bold : QFont::Normal));
    f.setItalic(corsivo);
    return f;
}

} // namespace lumigrafo
