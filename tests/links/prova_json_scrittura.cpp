#include "links/json_bag.h"
#include "platform/utf8.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <map>

namespace lumigrafo::prova {
namespace {

std::string stringa(const std::string& testo) {
    JsonBag bag;
    bag.IsArray(true);
    bag.Item(nullptr, testo);
    const std::string scritto = bag.JSON();
    return scritto.substr(2, scritto.size() - 4);
}

std::string numero(char32_t c) {
    char testo[8];
    std::snprintf(testo, sizeof testo, "\\u%04X", static_cast<unsigned>(c));
    return testo;
}

/// Every character of the first plane, by the bounds of the classes.
TEST(JsonScrittura, EachCharacterGoesOutInItsForm) {
    const std::map<char32_t, std::string> brevi = {{'"', "\\\""}, {'\\', "\\\\"}, {8, "\\b"}, {12, "\\f"},
                                                   {10, "\\n"},   {13, "\\r"},    {9, "\\t"}};
    const std::pair<char32_t, char32_t> numerati[] = {
        {0, 31},          {127, 159},       {0x34F, 0x34F},   {0x200B, 0x200F}, {0x2028, 0x202E},
        {0x2060, 0x2060}, {0xFE01, 0xFE0F}, {0xFEFF, 0xFEFF}, {0xFFFD, 0xFFFD},
    };
    for (char32_t c = 0; c <= 0xFFFF; ++c) {
        if (c >= 0xD800 && c <= 0xDFFF)
            continue;
        std::string testo;
        accodaCarattere(testo, c);
        std::string atteso = testo;
        for (const auto& [da, a] : numerati)
            if (c >= da && c <= a)
                atteso = numero(c);
        if (const auto breve = brevi.find(c); breve != brevi.end())
            atteso = breve->second;
        ASSERT_EQ(stringa(testo), atteso) << static_cast<unsigned>(c);
        ASSERT_EQ(stringa("0123456" + testo + "89"), "0123456" + atteso + "89");
    }
    EXPECT_EQ(stringa("\U00010000\U0010FFFF"), "\\uD800\\uDC00\\uDBFF\\uDFFF");
    EXPECT_EQ(stringa("\xED\xA0\x80|\xED\xBF\xBF"), "\\uD800|\\uDFFF");
    EXPECT_EQ(stringa("\xC3|\xFF|\xE2\x82"), "\\uFFFD|\\uFFFD|\\uFFFD\\uFFFD");
}

/// Long texts are written stretch by stretch: no character may be lost or doubled where two of them meet.
TEST(JsonScrittura, LongTextsAreWhole) {
    for (const std::string pezzo : {"è", "€", "🍕", "a", "\"", "\x01"})
        for (std::size_t prima = 500; prima < 525; ++prima) {
            std::string testo(prima, 'x');
            std::string atteso = testo;
            for (int i = 0; i < 3000; ++i) {
                testo += pezzo;
                atteso += stringa(pezzo);
            }
            ASSERT_EQ(stringa(testo), atteso) << pezzo << prima;
        }
}

/// Plain characters go over in eights, sevens and ones.
TEST(JsonScrittura, StretchesOfAnyLengthAreWholeAndComeBack) {
    const std::string piani = "abcdefghijklmnopqrstuvwxyz";
    for (const std::string pezzo : {"è", "\"", "\x01", "🍕"})
        for (std::size_t prima = 0; prima < piani.size(); ++prima)
            for (std::size_t dopo = 0; dopo < piani.size(); ++dopo) {
                const std::string a = piani.substr(0, prima), b = piani.substr(0, dopo);
                ASSERT_EQ(stringa(a + pezzo + b), a + stringa(pezzo) + b);
                JsonBag bag;
                bag.JSON("[\"" + a + stringa(pezzo) + b + "\"]");
                ASSERT_EQ(std::get<std::string>(bag.Item(1)), a + pezzo + b);
            }
}

TEST(JsonScrittura, Indented) {
    JsonBag bag;
    bag.Indented = true;
    EXPECT_EQ(bag.JSON(), "{}");
    bag.Item("a", 1);
    bag.AddNewArray("vuoto");
    JsonBag& b = bag.AddNewArray("b");
    b.Item(nullptr, "x");
    b.AddNewObject(nullptr).Item("c", nullptr);
    EXPECT_EQ(bag.JSON(), "{\r\n"
                          "    \"a\":1,\r\n"
                          "    \"vuoto\":[],\r\n"
                          "    \"b\":[\r\n"
                          "        \"x\",\r\n"
                          "        {\r\n"
                          "            \"c\":null\r\n"
                          "        }\r\n"
                          "    ]\r\n"
                          "}");
    bag.Indented = false;
    EXPECT_EQ(bag.JSON(), R"({"a":1,"vuoto":[],"b":["x",{"c":null}]})");
}

} // namespace
} // namespace lumigrafo::prova
