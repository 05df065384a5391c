#include "data/jet/proprieta.h"

#include "data/jet/definizione.h"
#include "data/jet/testo.h"

namespace lumigrafo::jet {

namespace {

constexpr std::string_view kInizio("MR2\0", 4);
constexpr std::string_view kPredefinito = "DefaultValue", kRichiesta = "Required";
enum Genere : std::uint16_t { DiColonna = 0x01, Nomi = 0x80 };

/// The length that begins a part, itself included.
std::size_t lunghezza(Vista v, std::size_t posto, std::size_t byte, std::size_t minima) {
    const std::size_t n = byte == 4 ? v.u32(posto) : v.u16(posto);
    if (n < minima)
        throw danno(v.pagina(), "una proprietà è troppo corta");
    return n;
}

/// A name or text behind its length.
Vista conLunghezza(Vista v, std::size_t posto) {
    return v.brano(posto + 2, v.u16(posto));
}

std::vector<std::string> leggiNomi(Vista v) {
    std::vector<std::string> nomi;
    for (std::size_t i = 0; i < v.lunga();) {
        const Vista nome = conLunghezza(v, i);
        nomi.push_back(leggiTesto(nome));
        i += 2 + nome.lunga();
    }
    return nomi;
}

Proprieta leggiColonna(Vista v, const std::vector<std::string>& nomi) {
    constexpr std::size_t kTesta = 8;
    Proprieta p{leggiTesto(conLunghezza(v, 4)), {}, false};
    for (std::size_t i = lunghezza(v, 0, 4, 6); i < v.lunga();) {
        const Vista voce = v.brano(i, lunghezza(v, i, 2, kTesta));
        const Vista valore = conLunghezza(voce, 6);
        const std::size_t nome = voce.u16(4);
        if (nome >= nomi.size())
            throw danno(v.pagina(), "una proprietà non ha nome");
        if (nomi[nome] == kPredefinito)
            p.predefinito = leggiTesto(valore);
        else if (nomi[nome] == kRichiesta)
            p.richiesta = valore.u8(0) != 0;
        i += voce.lunga();
    }
    return p;
}

void accoda(std::string& s, std::size_t n, int byte) {
    for (int i = 0; i < byte; ++i)
        s += static_cast<char>(n >> (8 * i));
}

/// A text behind its length.
std::string conLunghezza(std::string_view testo) {
    const std::string byte = scriviTesto(testo, false);
    std::string s;
    accoda(s, byte.size(), 2);
    return s + byte;
}

std::string parte(std::uint16_t genere, const std::string& corpo) {
    std::string s;
    accoda(s, 6 + corpo.size(), 4);
    accoda(s, genere, 2);
    return s + corpo;
}

/// `nome`: its place among the names.
std::string voce(Tipo tipo, std::size_t nome, const std::string& valore) {
    std::string s;
    accoda(s, 6 + valore.size(), 2);
    s += '\x01';
    s += static_cast<char>(tipo);
    accoda(s, nome, 2);
    return s + valore;
}

} // namespace

std::string componiProprieta(const std::vector<Proprieta>& proprieta) {
    std::string byte(kInizio);
    byte += parte(Nomi, conLunghezza(kPredefinito) + conLunghezza(kRichiesta));
    for (const Proprieta& p : proprieta) {
        const std::string nome = conLunghezza(p.colonna);
        std::string corpo;
        accoda(corpo, 4 + nome.size(), 4);
        corpo += nome;
        if (!p.predefinito.empty())
            corpo += voce(Tipo::Memo, 0, conLunghezza(p.predefinito));
        corpo += voce(Tipo::Booleano, 1, {'\1', '\0', static_cast<char>(p.richiesta ? 1 : 0)});
        byte += parte(DiColonna, corpo);
    }
    return byte;
}

std::vector<Proprieta> leggiProprieta(std::string_view byte) {
    std::vector<Proprieta> tutte;
    if (byte.empty())
        return tutte;
    const Vista v({reinterpret_cast<const std::uint8_t*>(byte.data()), byte.size()}, 0);
    if (!byte.starts_with(kInizio))
        throw danno(0, "le proprietà di una tabella non sono tali");
    constexpr std::size_t kTesta = 6;
    std::vector<std::string> nomi;
    for (std::size_t i = kInizio.size(); i < v.lunga();) {
        const Vista parte = v.brano(i, lunghezza(v, i, 4, kTesta));
        if (parte.u16(4) == Nomi)
            nomi = leggiNomi(parte.da(kTesta));
        else if (parte.u16(4) == DiColonna)
            if (Proprieta p = leggiColonna(parte.da(kTesta), nomi); p.richiesta || !p.predefinito.empty())
                tutte.push_back(std::move(p));
        i += parte.lunga();
    }
    return tutte;
}

} // namespace lumigrafo::jet
