// Reading: keys and texts by themselves, and whole archives that Access or another library wrote.
#include "data/errori_dao.h"
#include "data/jet/catalogo.h"
#include "data/jet/chiave.h"
#include "data/jet/dato.h"
#include "data/jet/ordinamento.h"
#include "data/jet/testo.h"
#include "data/jet/verifica.h"
#include "tests/data/jet/esporta.h"
#include "tests/sostegno/cartella_temporanea.h"
#include "tests/sostegno/guasto_atteso.h"

#include <bit>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>

namespace lumigrafo::jet {
namespace {

using prova::guastoDi;

std::string esa(std::string_view byte) {
    constexpr char kCifre[] = "0123456789abcdef";
    std::string s;
    for (const char c : byte)
        s = s + kCifre[(c >> 4) & 15] + kCifre[c & 15];
    return s;
}

Vista vista(const std::string& byte) {
    return {{reinterpret_cast<const std::uint8_t*>(byte.data()), byte.size()}, 0};
}

Colonna colonna(Tipo tipo) {
    Colonna c;
    c.tipo = tipo;
    c.lunghezza = tipo == Tipo::Testo ? 510 : 8;
    c.ordinamento = 0x409;
    return c;
}

TEST(JetChiavi, Testi) {
    const struct {
        const char *testo, *crescente, *decrescente;
    } casi[] = {
        {"", "0100", "feff00"},
        {"A", "4a0100", "b5feff00"},
        {"a  ", "4a0100", "b5feff00"},
        {"à", "4a010f00", "b5fef0ff00"},
        {"Caffè", "4d4a53535101020202020f00", "b2b5acacaefefdfdfdfdf0ff00"},
        {"Ünite", "6f62596d51011300", "909da692aefeecff00"},
        {"ß", "6b6b0100", "9494feff00"},
        {"a-b", "4a4c01010101800b068200", "b5b3fefefefe7ff4f97dff00"},
        {"dell'orto", "4f515e5e64696d64010101018017068000", "b0aea1a19b96929bfefefefe7fe8f97fff00"},
        {"Coca cola", "4d644d4a074d645e4a0100", "b29bb2b5f8b29ba1b5feff00"},
        {"€ Œ", "35a10764510100", "ca5ef89baefeff00"},
    };
    const Colonna c = colonna(Tipo::Testo);
    for (const auto& caso : casi)
        for (const bool comprime : {false, true}) {
            const std::string byte = scriviTesto(caso.testo, comprime);
            EXPECT_EQ(esa(parteDiChiave(c, true, byte)), "7f" + std::string(caso.crescente)) << caso.testo;
            EXPECT_EQ(esa(parteDiChiave(c, false, byte)), "80" + std::string(caso.decrescente)) << caso.testo;
        }
    EXPECT_EQ(guastoDi([&] { (void)parteDiChiave(c, true, scriviTesto("Ω", false)); }), dao::kConversione);
}

TEST(JetChiavi, TestiSenzaIndice) {
    const char* const crescenti[] = {"", "9", "a", "A b", "àb", "abc", "caffè", "caffettiera", "ß", "Ω", "ω"};
    for (std::size_t i = 0; i + 1 < std::size(crescenti); ++i) {
        EXPECT_LT(confronta(crescenti[i], crescenti[i + 1]), 0) << crescenti[i];
        EXPECT_GT(confronta(crescenti[i + 1], crescenti[i]), 0) << crescenti[i];
    }
    EXPECT_EQ(confronta("Perché no?", "PERCHÉ NO?  "), 0);
}

TEST(JetChiavi, GliAltriTipiSiOrdinanoComeIValori) {
    const struct {
        Tipo tipo;
        std::vector<double> valori; // ascending
    } casi[] = {
        {Tipo::Byte, {0, 1, 127, 128, 255}},
        {Tipo::Intero, {-32768, -1, 0, 1, 32767}},
        {Tipo::Lungo, {-2147483648.0, -11, 0, 11, 2147483647.0}},
        {Tipo::Valuta, {-9e14, -0.0001, 0, 0.0001, 12.5}},
        {Tipo::Singolo, {-1e30, -1.5, -1e-30, 0, 1e-30, 2}},
        {Tipo::Doppio, {-1e300, -1.5, 0, 3.25, 1e300}},
        {Tipo::Data, {-1.25, 0, 38143.5}},
    };
    for (const auto& [tipo, valori] : casi)
        for (const bool crescente : {true, false}) {
            const Colonna c = colonna(tipo);
            std::string prima = parteDiChiave(c, crescente, std::nullopt);
            for (const double v : valori) {
                const std::string chiave = parteDiChiave(c, crescente, scriviDato(c, v));
                EXPECT_EQ(prima < chiave, crescente) << int(tipo) << ' ' << v;
                prima = chiave;
            }
        }
    EXPECT_EQ(esa(parteDiChiave(colonna(Tipo::Lungo), false, scriviDato(colonna(Tipo::Lungo), 11.0))),
              "807ffffff4");
    EXPECT_LT(parteDiChiave(colonna(Tipo::Booleano), true, ""),
              parteDiChiave(colonna(Tipo::Booleano), true, {}));
}

TEST(JetTesto, CompressoEAlternato) {
    using namespace std::string_literals;
    const std::pair<std::string, const char*> casi[] = {
        // "\377\376": compressed
        {"\377\376Bar"s, "Bar"},
        {"\377\376caff\350"s, "caffè"},
        {"\377\376a\0\251\003\0b"s, "aΩb"},
        {"\251\003b\0"s, "Ωb"},
        {"b\0c"s, "b"},
        {"\075\330\0\336"s, "😀"},
    };
    for (const auto& [byte, testo] : casi)
        EXPECT_EQ(leggiTesto(vista(byte)), testo);
    for (const char* testo : {"", "a", "ab", "abc", "caffè", "aΩb", "😀😀"})
        for (const bool comprime : {false, true})
            EXPECT_EQ(leggiTesto(vista(scriviTesto(testo, comprime))), testo);
    EXPECT_EQ(leggiTesto(vista(scriviTesto("\uFEFF\uFEFFabc", true))),
              "abc"); // no prefix of a compressed one
}

TEST(JetDato, ScrittoSiRilegge) {
    const std::string guid = "{00112233-4455-6677-8899-AABBCCDDEEFF}";
    Colonna decimale = colonna(Tipo::Decimale), fisso = colonna(Tipo::Testo);
    decimale.ordinamento = 28 | 4 << 8; // 28 figures, four of them behind the point
    fisso.fissa = fisso.comprimibile = true;
    fisso.lunghezza = 12;
    const std::pair<Colonna, std::vector<std::pair<Dato, Dato>>> casi[] = {
        {colonna(Tipo::Guid), {{guid, guid}, {guid.substr(1, 36), guid}}},
        {decimale,
         {{std::int64_t{-7}, "-7.0000"},
          {12.34565, "12.3456"},
          {-0.0, "0.0000"},
          {"123456789012345678901234.5678", "123456789012345678901234.5678"},
          {"1e3", "1000.0000"}}},
        {colonna(Tipo::Doppio), {{-0.0, 0.0}, {1e300, 1e300}}},
        {fisso, {{"abcd", "abcd  "}}},
    };
    for (const auto& [c, valori] : casi)
        for (const auto& [scritto, letto] : valori)
            EXPECT_EQ(leggiDato(c, vista(*scriviDato(c, scritto))), letto);
    EXPECT_FALSE(std::signbit(
        std::get<double>(leggiDato(colonna(Tipo::Doppio), vista(*scriviDato(colonna(Tipo::Doppio), -0.0))))));
    const std::pair<Colonna, Dato> impossibili[] = {
        {colonna(Tipo::Guid), "{00112233-4455-6677-8899-AABBCCDDEEF}"},
        {colonna(Tipo::Guid), "{00112233-4455-6677+8899-AABBCCDDEEFF}"},
        {decimale, "1234567890123456789012345.5678"},
        {colonna(Tipo::Singolo), 1e300},
    };
    for (const auto& [c, dato] : impossibili)
        EXPECT_EQ(guastoDi([&, &colonna = c, &valore = dato] { (void)scriviDato(colonna, valore); }),
                  dao::kConversione);
}

TEST(JetIntestazione, RifiutaQuelCheNonDeveToccare) {
    const prova::CartellaTemporanea cartella;
    const auto file = cartella.percorso() / "archivio.mdb";
    const auto apre = [&](std::size_t posto, char byte, std::size_t lunga) {
        const Pagina buona = nuovaIntestazione({0x409, 38143.5});
        std::string tutto(buona.byte.begin(), buona.byte.end());
        tutto[posto] = static_cast<char>(tutto[posto] ^ byte);
        tutto.resize(lunga);
        std::ofstream(file, std::ios::binary) << tutto;
        return guastoDi([&] { Pagine(file, {.sola_lettura = true}); });
    };
    EXPECT_EQ(apre(0, 0, 16384), 0);
    EXPECT_EQ(apre(0x14, 1, 16384), dao::kFormato); // Access 97
    EXPECT_EQ(apre(0x14, 3, 16384), dao::kFormato); // .accdb
    EXPECT_EQ(apre(0x04, 1, 16384), dao::kFormato); // another program's
    EXPECT_EQ(apre(0x3E, 1, 16384), dao::kFormato); // encrypted
    EXPECT_EQ(apre(0x43, 1, 16384), dao::kPassword);
    EXPECT_EQ(apre(0, 0, 16384 - 100), dao::kDanneggiato);
    EXPECT_EQ(apre(0, 0, 4096), dao::kFormato);
}

TEST(JetArchiviAltrui, StesseRigheDiMdbExportEIndiciInOrdine) {
    const char* cartella = std::getenv("LUMIGRAFO_ARCHIVI_ACCESS");
    if (!cartella)
        GTEST_SKIP() << "LUMIGRAFO_ARCHIVI_ACCESS names no folder of archives";
    std::size_t confrontate = 0;
    for (const auto& voce : std::filesystem::recursive_directory_iterator(cartella)) {
        if (voce.path().extension() != ".mdb")
            continue;
        Pagine pagine(voce.path(), {.sola_lettura = true});
        EXPECT_EQ(verifica(pagine).discordanze, std::vector<std::string>()) << voce.path();
        const prova::CartellaTemporanea copie;
        const auto copia = copie.percorso() / "archivio.mdb";
        std::filesystem::copy_file(voce.path(), copia);
        Workspace ws;
        const auto db = ws.OpenDatabase(copia.string());
        for (const VoceCatalogo& tabella : leggiCatalogo(pagine)) {
            if (tabella.sistema)
                continue;
            EXPECT_EQ(prova::valori(*db, tabella.nome), prova::valori(*db, prova::perNome(*db, tabella.nome)))
                << voce.path() << ' ' << tabella.nome;
            const std::string altrui = prova::mdbExport(voce.path().string(), tabella.nome);
            EXPECT_EQ(prova::righeOrdinate(prova::esporta(pagine, tabella.nome)),
                      prova::righeOrdinate(altrui))
                << voce.path() << ' ' << tabella.nome;
            confrontate += altrui.empty() ? 0 : 1;
        }
    }
    EXPECT_GT(confrontate, 0u);
}

} // namespace
} // namespace lumigrafo::jet
