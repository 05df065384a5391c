#include "links/json_bag.h"
#include "tests/sostegno/guasto_atteso.h"

#include <gtest/gtest.h>

namespace lumigrafo::prova {
namespace {

TEST(JsonLettura, TextsThatAreRead) {
    const struct {
        std::string testo, scritto;
    } casi[] = {
        {"\t\r\n {}", "{}"},
        {" [ ] and more", "[]"},
        {"[1,,2]", "[1,2]"},
        {"[,1,2]", "[1,2]"},
        {"[1 2]", "[1,2]"},
        {"[1-2\"a\"[]{}null true]", "[1,-2,\"a\",[],{},null,true]"},
        {"[NULL,True,fAlSe]", "[null,true,false]"},
        {R"({"a":1,,"b":2,})", R"({"a":1,"b":2})"},
        {R"({"a" : 1 "b":2})", R"({"a":1,"b":2})"},
        {R"({"a":1,"b":2,"a":{"c":[]}})", R"({"a":{"c":[]},"b":2})"},
        {R"({"":"","a\"":"\/"})", R"({"":"","a\"":"/"})"},
        {R"(["\"\\\/\b\f\n\r\t\B\F\N\R\T"])", R"(["\"\\/\b\f\n\r\t\b\f\n\r\t"])"},
        {R"(["\u0041\u00E8\U20ac\ud83c\udf55"])", R"(["Aè€\uD83C\uDF55"])"},
        {"[\"\xED\xA0\xBC\\udf55\",\"\\ud83c\xED\xBD\x95\"]", R"(["\uD83C\uDF55","\uD83C\uDF55"])"},
        {R"(["\udf55\ud83c x\ud83c"])", R"(["\uDF55\uD83C x\uD83C"])"},
        {"[\"12345678\x7f\"]", "[\"12345678\\u007F\"]"},
    };
    for (const auto& [testo, scritto] : casi) {
        JsonBag bag;
        EXPECT_EQ(fallimento([&] { bag.JSON(testo); }), Fallimento()) << testo;
        EXPECT_EQ(bag.JSON(), scritto) << testo;
    }
}

/// Names that are written alike must be one name.
TEST(JsonLettura, StrayBytesAndHalvesHaveOneFormInMemory) {
    JsonBag bag;
    bag.JSON("{\"a\xC0\":1,\"a\xFF\":2,\"a\\ufffd\":3,\"\xED\xA0\xBC\xED\xBD\x95\":4,\"🍕\":5}");
    EXPECT_EQ(bag.JSON(), R"({"a\uFFFD":3,"\uD83C\uDF55":5})");
    bag.JSON(R"({"\ud83c\udf55":"\u00e8"})");
    EXPECT_EQ(bag.Name(1), "🍕");
    EXPECT_EQ(std::get<std::string>(bag.Item("🍕")), "è");
}

TEST(JsonLettura, EachFaultHasItsNumberTextAndPlace) {
    const struct {
        std::string testo;
        int numero;
        std::string descrizione;
    } casi[] = {
        {"", 13, "Expected either { or [ at character 1"},
        {"  ", 13, "Expected either { or [ at character 3"},
        {" null", 13, "Expected either { or [ at character 2"},
        {"{", 13, "Expected , or } at character 2"},
        {"{]", 13, "Expected , or } at character 2"},
        {R"({"a":1;})", 13, "Expected , or } at character 7"},
        {R"({"a":1e5e3})", 13, "Expected , or } at character 9"},
        {R"({"a" 1})", 13, "Expected : at character 6"},
        {R"({"a")", 13, "Expected : at character 5"},
        {R"({"a)", 13, "Expected \" at character 4"},
        {R"(["a\n)", 13, "Expected \" at character 6"},
        {"{ ,\"a\":1}", 13, "Found \",\" before first item at character 3"},
        {"[", 13, "Bad value at character 2"},
        {"[1,", 13, "Bad value at character 4"},
        {"[nul]", 13, "Bad value at character 2"},
        {"[+1]", 13, "Bad value at character 2"},
        {"[.5]", 13, "Bad value at character 2"},
        {R"({"a":})", 13, "Bad value at character 6"},
        {R"(["ab\x"])", 13, "Bad string character escape at character 5"},
        {R"(["ab\u12G4"])", 13, "Bad string character escape at character 5"},
        {R"(["\u123)", 13, "Bad string character escape at character 3"},
        {R"(["\)", 13, "Bad string character escape at character 3"},
        {"[\"a\tb\"]", 13, "Invalid string character at 4"},
        {std::string("[\"abcdefghij\0\"]", 15), 13, "Invalid string character at 13"},
        {"[\"\\n\x1f\"]", 13, "Invalid string character at 5"},
        {"[1.2.3]", 13, "Second decimal point at character 5"},
        {"[-.5]", 13, "Digit expected at character 3"},
        {"[1e+-5]", 13, "Second exponent sign at character 5"},
        {"[12", 13, "Ran off end of string while parsing a number"},
        {"[-", 13, "Ran off end of string while parsing a number"},
        {"[1,-]", 6, "Number overflow or parse error at character 4"},
        {"[1e]", 6, "Number overflow or parse error at character 2"},
        {"[1e+]", 6, "Number overflow or parse error at character 2"},
        {"[-e5]", 6, "Number overflow or parse error at character 2"},
        {"[1e400]", 6, "Number overflow or parse error at character 2"},
        // A character beyond the 16 bits counts twice, a stray byte and a lone half once.
        {"[\"è€\",x]", 13, "Bad value at character 7"},
        {"[\"🍕è\",x]", 13, "Bad value at character 8"},
        {"{\"🍕🍕\":1.2.3}", 13, "Second decimal point at character 12"},
        {"[\"\x80\xC3\",x]", 13, "Bad value at character 7"},
        {"[\"\xED\xA0\x80\",x]", 13, "Bad value at character 6"},
        {"\xEF\xBB\xBF{}", 13, "Expected either { or [ at character 1"},
    };
    for (const auto& caso : casi) {
        JsonBag bag;
        EXPECT_EQ(fallimento([&] { bag.JSON(caso.testo); }), Fallimento(caso.numero, caso.descrizione))
            << caso.testo;
    }
}

TEST(JsonLettura, DeepNestingIsRefusedAtItsBracket) {
    const std::string massimo(JsonBag::kProfonditaMassima, '[');
    JsonBag bag;
    EXPECT_EQ(fallimento([&] { bag.JSON(massimo + std::string(massimo.size(), ']')); }), Fallimento());
    EXPECT_EQ(fallimento([&] { bag.JSON(massimo + "[]"); }),
              Fallimento(13, "Nested too deep at character " + std::to_string(massimo.size() + 1)));
    std::string oggetti;
    for (int i = 0; i < 1'000'000; ++i)
        oggetti += "{\"\":";
    EXPECT_EQ(fallimento([&] { bag.JSON(oggetti); }),
              Fallimento(13, "Nested too deep at character " + std::to_string(massimo.size() * 4 + 1)));
}

/// What was there before is gone, the type of numbers stays, and a fault leaves what came before it.
TEST(JsonLettura, ANewTextReplacesTheOld) {
    JsonBag bag;
    bag.DecimalMode(true);
    bag.JSON("[0.1,[0.2]]");
    EXPECT_EQ(std::get<Decimale>(comeBag(bag.Item(2)).Item(1)), Decimale::daTesto("0.2"));
    EXPECT_EQ(fallimento([&] { bag.JSON(R"({"a":1,"b":[1,x]})"); }).first, 13);
    EXPECT_EQ(bag.JSON(), R"({"a":1})");
    EXPECT_TRUE(bag.DecimalMode());
    bag.DecimalMode(false);
    bag.JSON(R"({"a":"[0.5,\"a text of the bag itself\"]"})");
    bag.JSON(std::get<std::string>(bag.Item("a")));
    EXPECT_EQ(bag.Count(), 2u);
    EXPECT_EQ(std::get<double>(bag.Item(1)), 0.5);
}

} // namespace
} // namespace lumigrafo::prova
