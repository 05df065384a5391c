#include "settings/ini/cp1252.h"
#include "settings/ini/testo_ini.h"

#include <gtest/gtest.h>
#include <string>

namespace lumigrafo {
namespace {

using namespace std::string_literals;

TEST(TestoIni, lettura) {
    struct Caso {
        const char* nome;
        std::string testo;
        const char* atteso; ///< of key Chiave in section Sez; null: missing
    };
    const Caso casi[] = {
        {"plain", "[Sez]\r\nChiave=12\r\n", "12"},
        {"without regard to case", "[sEZ]\nCHIAVE=12\n", "12"},
        {"blanks and tabs", " \t[ Sez ] \r\n\t Chiave \t= \t12 \t\r\n", "12"},
        {"blanks inside stay", "[Sez]\nChiave=STIAMO  SERVENDO = ; I\n", "STIAMO  SERVENDO = ; I"},
        {"last line open", "[Sez]\nChiave=12", "12"},
        {"last line open behind CR", "[Sez]\r\nChiave=12\r", "12"},
        {"first section wins", "[Sez]\nA=1\n[Altra]\n[Sez]\nChiave=2\n", nullptr},
        {"first key wins", "[Sez]\nChiave=1\nChiave=2\n", "1"},
        {"key of another section", "[Altra]\nChiave=1\n[Sez]\nA=2\n", nullptr},
        {"key before any section", "Chiave=1\n", nullptr},
        {"longer names", "[Sez2]\nChiave=1\n[Sez]\nChiave1=1\n", nullptr},
        {"comments", "[Sez]\n;Chiave=1\n ; Chiave=2\nChiave=3\n", "3"},
        {"commented section", ";[Sez]\nChiave=1\n", nullptr},
        {"half-written section", "[Sez]\n[Alt\nChiave=1\n", "1"},
        {"half-written key", "[Sez]\nChia\nChiave=1\n", "1"},
        {"text behind the bracket", "[Sez] nota ]\nChiave=1\n", "1"},
        {"empty", "[Sez]\nChiave=\n", ""},
        {"double quotes", "[Sez]\nChiave=\" a \"\n", " a "},
        {"single quotes", "[Sez]\nChiave='a'\n", "a"},
        {"one pair only", "[Sez]\nChiave='\"a\"'\n", "\"a\""},
        {"quotes that don't match", "[Sez]\nChiave=\"a'\n", "\"a'"},
        {"a quote alone", "[Sez]\nChiave=\"\n", "\""},
        {"byte order mark", "\xEF\xBB\xBF[Sez]\nChiave=1\n", "1"},
        {"zero bytes", "\0\0[Sez]\n\0\0Chiave=1\0 2\n"s, "1"},
        {"garbage", "\xFF\xFE\x01]=[\n=\n]\n\r\r\n[\n[Sez]\n\xFF\n=9\nChiave=1", "1"},
        {"nothing", "", nullptr},
    };
    for (const auto& c : casi) {
        SCOPED_TRACE(c.nome);
        const auto valore = valoreIni(c.testo, "Sez", "Chiave");
        EXPECT_EQ(valore.has_value(), c.atteso != nullptr);
        EXPECT_EQ(valore.value_or(""), c.atteso ? c.atteso : "");
    }
}

TEST(TestoIni, scrittura) {
    struct Caso {
        const char* nome;
        std::string prima, dopo; ///< with key Chiave of section Sez set to 7
    };
    const Caso casi[] = {
        {"empty text", "", "[Sez]\r\nChiave=7\r\n"},
        {"replaced", "; a\r\n[Sez]\r\nChiave=1\r\nB=2\r\n", "; a\r\n[Sez]\r\nChiave=7\r\nB=2\r\n"},
        {"spelling and blanks kept", " [SEZ] x\n\tchiave = 1 \nB\n", " [SEZ] x\n\tchiave = 7\nB\n"},
        {"blank value", "[Sez]\nChiave=  \nB=1\n", "[Sez]\nChiave=  7\nB=1\n"},
        {"first of two", "[Sez]\nChiave=1\nChiave=2\n", "[Sez]\nChiave=7\nChiave=2\n"},
        {"open last line", "[Sez]\nChiave=1", "[Sez]\nChiave=7"},
        {"added", "[Sez]\nA=1\n\n; of the other\n[Altra]\nC=1\n",
         "[Sez]\nA=1\nChiave=7\n\n; of the other\n[Altra]\nC=1\n"},
        {"added behind an open line", "[Sez]\nA=1", "[Sez]\nA=1\nChiave=7\n"},
        {"added to an empty section", "[Sez]\r\n\r\n[B]\r\n", "[Sez]\r\nChiave=7\r\n\r\n[B]\r\n"},
        {"new section", "[A]\nB=1\n", "[A]\nB=1\n[Sez]\nChiave=7\n"},
        {"new section behind a half line", "[A]\nB=1\n[Se", "[A]\nB=1\n[Se\n[Sez]\nChiave=7\n"},
        {"only half a line", "[Se", "[Se\r\n[Sez]\r\nChiave=7\r\n"},
        {"mixed ends", "[A]\nB=1\r\n[Sez]\nD=1\n[E]\r\n", "[A]\nB=1\r\n[Sez]\nD=1\nChiave=7\n[E]\r\n"},
        {"byte order mark", "\xEF\xBB\xBF[Sez]\nChiave=1\n", "\xEF\xBB\xBF[Sez]\nChiave=7\n"},
        {"garbage", "\xFF\0\n[Sez]\n\0\xFE]\nChiave=\0\0"s, "\xFF\0\n[Sez]\n\0\xFE]\nChiave=7"s},
    };
    for (const auto& c : casi) {
        SCOPED_TRACE(c.nome);
        const auto dopo = conValoreIni(c.prima, "Sez", "Chiave", "7");
        EXPECT_EQ(dopo, c.dopo);
        EXPECT_EQ(valoreIni(dopo, "Sez", "Chiave"), "7");
        EXPECT_EQ(conValoreIni(dopo, "Sez", "Chiave", "7"), dopo);
    }
}

TEST(TestoIni, ogniValoreTornaComeEra) {
    for (const char* v : {"", "a", "\"a\"", "'a'", "''", "\"", "'\"a\"'", "\"a'", "\ta", "a\t", "[x]", ";x",
                          "=", "\x81\x8D\x8F\x90\x9D", "C:\\Archivi\\"})
        EXPECT_EQ(valoreIni(conValoreIni("[Sez]\nA=1\n", "Sez", "Chiave", v), "Sez", "Chiave"), v);
    // Only the first line of a longer text has room.
    for (const char* v : {"uno\r\nB=9", "uno\nB=9", "uno\rB=9"})
        EXPECT_EQ(conValoreIni("[Sez]\n", "Sez", "Chiave", v), "[Sez]\nChiave=uno\n");
}

TEST(Cp1252, traduceOgniByte) {
    std::string tutti;
    for (int i = 0; i < 256; ++i)
        tutti += static_cast<char>(i);
    EXPECT_EQ(aCp1252(daCp1252(tutti)), tutti);
    EXPECT_EQ(daCp1252("perch\xE9 \x80 5 \x93qui\x94"), "perché € 5 “qui”");
    EXPECT_EQ(aCp1252("ş😀\xC3!"), std::string(3, '?') + "!");
    EXPECT_EQ(aCp1252("\xC2\x80"), "?"); // its byte is the euro sign's
}

} // namespace
} // namespace lumigrafo
