#include "data/lessico.h"

#include "platform/conversioni.h"

#include <algorithm>

namespace lumigrafo::lessico {

namespace {

bool vuoto(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}
bool cifra(char c) {
    return c >= '0' && c <= '9';
}
bool diParola(char c) {
    return cifra(c) || c == '_' || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
           static_cast<unsigned char>(c) >= 0x80;
}

std::size_t finche(std::string_view sql, std::size_t i, bool (*vale)(char)) {
    while (i < sql.size() && vale(sql[i]))
        ++i;
    return i;
}

/// Behind the closing mark; the same mark twice stands for itself.
std::size_t dopoChiusura(std::string_view sql, std::size_t i, char chiusura) {
    for (++i; i < sql.size(); ++i) {
        if (sql[i] != chiusura)
            continue;
        if (chiusura == ']' || i + 1 >= sql.size() || sql[i + 1] != chiusura)
            return i + 1;
        ++i;
    }
    return sql.size();
}

std::size_t dopoNumero(std::string_view sql, std::size_t i) {
    i = finche(sql, i, cifra);
    if (i < sql.size() && sql[i] == '.')
        i = finche(sql, i + 1, cifra);
    return finche(sql, i, diParola); // an exponent, or what makes it no number: one piece in any case
}

} // namespace

std::vector<Pezzo> spezza(std::string_view sql) {
    std::vector<Pezzo> pezzi;
    for (std::size_t i = 0; i < sql.size();) {
        const char c = sql[i];
        std::size_t fine = i + 1;
        Genere genere = Genere::Simbolo;
        if (vuoto(c)) {
            genere = Genere::Vuoto;
            fine = finche(sql, i, vuoto);
        } else if (c == '\'' || c == '"') {
            genere = Genere::Testo;
            fine = dopoChiusura(sql, i, c);
        } else if (c == '[' || c == '`') {
            genere = Genere::Nome;
            fine = dopoChiusura(sql, i, c == '[' ? ']' : '`');
        } else if (cifra(c)) {
            genere = Genere::Numero;
            fine = dopoNumero(sql, i);
        } else if (diParola(c)) {
            genere = Genere::Parola;
            fine = finche(sql, i, diParola);
        }
        pezzi.push_back({genere, sql.substr(i, fine - i)});
        i = fine;
    }
    return pezzi;
}

Lettore::Lettore(const std::vector<Pezzo>& pezzi) : pezzi_(pezzi) {
    for (std::size_t i = 0; i < pezzi.size(); ++i)
        if (pezzi[i].genere != Genere::Vuoto)
            pieni_.push_back(i);
}

const Pezzo& Lettore::operator[](std::size_t i) const {
    static constexpr Pezzo kFine{Genere::Simbolo, {}};
    return i < pieni_.size() ? pezzi_[pieni_[i]] : kFine;
}

bool Lettore::e(std::size_t i, std::string_view parola) const {
    const Pezzo& p = (*this)[i];
    return (p.genere == Genere::Parola || p.genere == Genere::Simbolo) &&
           ugualeSenzaMaiuscole(p.testo, parola);
}

bool Lettore::nome(std::size_t i) const {
    const Genere g = (*this)[i].genere;
    return g == Genere::Parola || g == Genere::Nome;
}

std::string nudo(std::string_view nome) {
    const bool chiuso =
        nome.size() >= 2 && (nome.front() == '[' || nome.front() == '`' || nome.front() == '"');
    return std::string(chiuso ? nome.substr(1, nome.size() - 2) : nome);
}

std::string traVirgolette(std::string_view nome) {
    std::string t = "\"";
    for (const char c : nome)
        t.append(c == '"' ? 2 : 1, c);
    return t + '"';
}

} // namespace lumigrafo::lessico
