#include "links/json_indice.h"

#include <bit>
#include <cstring>
#include <random>

namespace lumigrafo::json {

namespace {

/// Another one in each run: nobody can send names that are made to collide.
std::uint64_t seme() {
    static const std::uint64_t valore = [] {
        std::random_device caso;
        return std::uint64_t{caso()} << 32 | caso();
    }();
    return valore;
}

constexpr std::uint64_t mescola(std::uint64_t a) {
    a = (a ^ a >> 32) * 0x9E3779B97F4A7C15;
    return (a ^ a >> 29) * 0xBF58476D1CE4E5B9;
}

std::uint64_t parola(const char* da, std::size_t byte) {
    std::uint64_t risultato = 0;
    std::memcpy(&risultato, da, byte);
    return risultato;
}

std::uint32_t impronta(std::string_view nome) {
    constexpr std::size_t kParola = sizeof(std::uint64_t);
    const char* da = nome.data();
    const char* const fine = da + nome.size();
    std::uint64_t h = seme() ^ nome.size();
    if (nome.size() < kParola)
        return static_cast<std::uint32_t>(mescola(h ^ parola(da, nome.size())) >> 32);
    const char* const ultima = fine - kParola; // it may overlap with the one before
    for (; da < ultima; da += kParola)
        h = mescola(h ^ parola(da, kParola));
    return static_cast<std::uint32_t>(mescola(h ^ parola(ultima, kParola)) >> 32);
}

} // namespace

std::size_t IndiceNomi::trova(const std::vector<std::string>& nomi, std::string_view nome) {
    impara(nomi);
    return trova(nomi, nome, impronta(nome));
}

std::size_t IndiceNomi::trovaPerAggiungere(const std::vector<std::string>& nomi, std::string_view nome) {
    impara(nomi);
    const std::uint32_t h = impronta(nome);
    const std::size_t posto = trova(nomi, nome, h);
    if (posto == kAssente)
        aggiungi(h);
    return posto;
}

std::size_t IndiceNomi::trova(const std::vector<std::string>& nomi, std::string_view nome,
                              std::uint32_t h) const {
    if (caselle_.empty())
        return kAssente;
    const std::size_t maschera = caselle_.size() - 1;
    for (std::size_t i = h & maschera; caselle_[i] != 0; i = (i + 1) & maschera) {
        const std::size_t posto = caselle_[i] - 1;
        if (impronte_[posto] == h && nomi[posto] == nome)
            return posto;
    }
    return kAssente;
}

void IndiceNomi::impara(const std::vector<std::string>& nomi) {
    if (nomi.size() * 2 > caselle_.size())
        allarga(nomi.size());
    while (impronte_.size() < nomi.size())
        aggiungi(impronta(nomi[impronte_.size()]));
}

void IndiceNomi::aggiungi(std::uint32_t impronta) {
    impronte_.push_back(impronta);
    if (impronte_.size() * 2 > caselle_.size())
        allarga(impronte_.size());
    else
        inserisci(impronte_.size() - 1);
}

void IndiceNomi::allarga(std::size_t nomi) {
    caselle_.assign(std::bit_ceil(nomi * 4), 0);
    impronte_.reserve(caselle_.size() / 2);
    for (std::size_t posto = 0; posto < impronte_.size(); ++posto)
        inserisci(posto);
}

void IndiceNomi::inserisci(std::size_t posto) {
    const std::size_t maschera = caselle_.size() - 1;
    std::size_t i = impronte_[posto] & maschera;
    while (caselle_[i] != 0)
        i = (i + 1) & maschera;
    caselle_[i] = static_cast<std::uint32_t>(posto + 1);
}

} // namespace lumigrafo::json
