#include "links/json_lettore.h"

#include "links/json_errori.h"
#include "links/json_numeri.h"
#include "links/json_testo.h"
#include "platform/conversioni.h"

#include <utility>

namespace lumigrafo {

namespace {

constexpr bool bianco(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}
constexpr bool cifra(char c) {
    return c >= '0' && c <= '9';
}
constexpr bool apre(char c) {
    return c == '{' || c == '[';
}

/// The first character of a string that isn't simply part of it: a quote, a backslash, a control. The top bit
/// of a byte of `visti` is set if there may be more than ASCII before it.
const char* finePiana(const char* da, const char* fine, std::uint64_t& visti) {
    namespace otto = json::otto;
    for (; fine - da >= 8; da += 8) {
        const std::uint64_t p = otto::leggi(da);
        visti |= p;
        const std::uint64_t fermo = otto::ugualiA(p, '"') | otto::ugualiA(p, '\\') | otto::minoriDi(p, 0x20);
        if (fermo != 0) {
            da += otto::primo(fermo);
            break;
        }
    }
    for (; da != fine; ++da) {
        const auto c = static_cast<unsigned char>(*da);
        if (c == '"' || c == '\\' || c < 0x20)
            break;
        visti |= c;
    }
    return da;
}

int valoreEsadecimale(char c) {
    if (cifra(c))
        return c - '0';
    const int lettera = c | 0x20;
    return lettera >= 'a' && lettera <= 'f' ? lettera - 'a' + 10 : -1;
}

} // namespace

void LettoreJson::leggi(JsonBag& radice) {
    saltaBianchi();
    if (!apre(carattere()))
        atteso("either { or [");
    if (*cursore_++ == '{') {
        leggiOggetto(radice, 1);
    } else {
        radice.IsArray(true);
        leggiArray(radice, 1);
    }
}

void LettoreJson::leggiOggetto(JsonBag& bag, int livello) {
    for (;;) {
        saltaBianchi();
        const char c = carattere();
        if (c == '"') {
            leggiMembro(bag, livello);
            continue;
        }
        if (c == ',' && bag.Count() == 0)
            guasto("Found \",\" before first item at character ", cursore_);
        if (c != ',' && c != '}')
            atteso(", or }");
        ++cursore_;
        if (c == '}')
            return;
    }
}

void LettoreJson::leggiMembro(JsonBag& bag, int livello) {
    std::string nome = leggiStringa();
    saltaBianchi();
    if (carattere() != ':')
        atteso(":");
    ++cursore_;
    saltaBianchi();
    bag.poni(std::move(nome), leggiValore(bag, livello));
}

void LettoreJson::leggiArray(JsonBag& bag, int livello) {
    for (;;) {
        saltaBianchi();
        const char c = carattere();
        if (c == ']') {
            ++cursore_;
            return;
        }
        if (c == ',')
            ++cursore_;
        else
            bag.accoda(leggiValore(bag, livello));
    }
}

Valore LettoreJson::leggiValore(const JsonBag& padre, int livello) {
    const char c = carattere();
    if (c == '"')
        return leggiStringa();
    if (cifra(c) || c == '-')
        return leggiNumero(padre);
    if (apre(c))
        return leggiFiglio(padre, livello + 1);
    if (parola("null"))
        return nullptr;
    if (parola("true"))
        return true;
    if (parola("false"))
        return false;
    guasto("Bad value at character ", cursore_);
}

Valore LettoreJson::leggiFiglio(const JsonBag& padre, int livello) {
    if (livello > JsonBag::kProfonditaMassima)
        guasto("Nested too deep at character ", cursore_);
    const bool array = *cursore_++ == '[';
    auto figlio = padre.nuovoFiglio(array);
    if (array)
        leggiArray(*figlio, livello);
    else
        leggiOggetto(*figlio, livello);
    return figlio;
}

Valore LettoreJson::leggiNumero(const JsonBag& padre) {
    const char* const primo = cursore_;
    const std::string_view testo = testoDelNumero();
    if (padre.DecimalMode()) {
        if (const auto decimale = Decimale::daTesto(testo))
            return *decimale;
    } else if (const auto doppio = json::doppioDaTesto(testo)) {
        return *doppio;
    }
    guasto("Number overflow or parse error at character ", primo, guasti::kSovraccarico);
}

/// Only what can belong to a number is looked for here; whether it is one, the conversion tells.
std::string_view LettoreJson::testoDelNumero() {
    const char* const primo = cursore_++;
    bool punto = false, esponente = false, segno = false;
    for (; cursore_ != fine_; ++cursore_) {
        const char c = *cursore_;
        if (cifra(c))
            continue;
        if (c == '.') {
            if (punto)
                guasto("Second decimal point at character ", cursore_);
            if (*primo == '-' && cursore_ == primo + 1)
                guasto("Digit expected at character ", cursore_);
            punto = true;
        } else if ((c == 'e' || c == 'E') && !esponente) {
            esponente = true;
        } else if ((c == '+' || c == '-') && esponente) {
            if (segno)
                guasto("Second exponent sign at character ", cursore_);
            segno = true;
        } else {
            return {primo, cursore_};
        }
    }
    throw Guasto(guasti::kTipo, "Ran off end of string while parsing a number");
}

std::string LettoreJson::leggiStringa() {
    ++cursore_;
    std::string stringa;
    leggiPiani(stringa);
    if (carattere() != '"')
        leggiResto(stringa);
    ++cursore_;
    return stringa;
}

void LettoreJson::leggiPiani(std::string& stringa) {
    const char* const primo = cursore_;
    std::uint64_t visti = 0;
    cursore_ = finePiana(primo, fine_, visti);
    const std::string_view piani(primo, cursore_);
    if ((visti & json::otto::kAlti) == 0)
        stringa.append(piani);
    else
        json::accoda(stringa, piani);
}

/// Goes on where something else than a plain character stands, up to the closing quote.
void LettoreJson::leggiResto(std::string& stringa) {
    while (cursore_ != fine_ && *cursore_ != '"') {
        if (*cursore_ != '\\')
            guasto("Invalid string character at ", cursore_);
        leggiScorciatoia(stringa);
        leggiPiani(stringa);
    }
    if (cursore_ == fine_)
        atteso("\"");
}

void LettoreJson::leggiScorciatoia(std::string& stringa) {
    const char* const barra = cursore_++;
    const char c = carattere();
    ++cursore_;
    switch (c) {
    case '"':
    case '\\':
    case '/':
        stringa += c;
        return;
    case 'b':
    case 'B':
        stringa += '\b';
        return;
    case 'f':
    case 'F':
        stringa += '\f';
        return;
    case 'n':
    case 'N':
        stringa += '\n';
        return;
    case 'r':
    case 'R':
        stringa += '\r';
        return;
    case 't':
    case 'T':
        stringa += '\t';
        return;
    case 'u':
    case 'U':
        json::accodaUnita(stringa, leggiEsadecimale(barra));
        return;
    default:
        guasto("Bad string character escape at character ", barra);
    }
}

char16_t LettoreJson::leggiEsadecimale(const char* barra) {
    int codice = 0;
    for (int i = 0; i < 4; ++i) {
        const int valore = valoreEsadecimale(carattere());
        if (valore < 0)
            guasto("Bad string character escape at character ", barra);
        codice = codice << 4 | valore;
        ++cursore_;
    }
    return static_cast<char16_t>(codice);
}

/// Steps over `attesa`, which is in lower case, if it stands at the cursor in any case.
bool LettoreJson::parola(std::string_view attesa) {
    const auto lunghezza = static_cast<std::ptrdiff_t>(attesa.size());
    if (fine_ - cursore_ < lunghezza || !ugualeSenzaMaiuscole({cursore_, attesa.size()}, attesa))
        return false;
    cursore_ += lunghezza;
    return true;
}

void LettoreJson::saltaBianchi() {
    while (cursore_ != fine_ && bianco(*cursore_))
        ++cursore_;
}

void LettoreJson::atteso(const char* cosa) const {
    guasto((std::string("Expected ") + cosa + " at character ").c_str(), cursore_);
}

void LettoreJson::guasto(const char* testo, const char* dove, int numero) const {
    throw json::guastoNelTesto(testo, json::unita({inizio_, dove}) + 1, numero);
}

} // namespace lumigrafo
