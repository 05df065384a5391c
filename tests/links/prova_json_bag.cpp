#include "links/json_bag.h"
#include "tests/sostegno/guasto_atteso.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lumigrafo::prova {
namespace {

using testing::ElementsAre;

TEST(JsonBag, MembersKeepTheirPlaceAndTheirCase) {
    JsonBag bag;
    bag.Item("Alfa", 1);
    bag.Item("alfa", "due");
    bag.Item("è", true);
    bag.Item("Alfa", nullptr);
    EXPECT_EQ(bag.JSON(), R"({"Alfa":null,"alfa":"due","è":true})");
    EXPECT_EQ(bag.Count(), 3u);
    EXPECT_EQ(bag.Name(2), "alfa");
    EXPECT_EQ(std::get<std::string>(bag.Item(2)), "due");
    EXPECT_EQ(std::get<bool>(bag.Item("è")), true);
    EXPECT_TRUE(bag.Exists("alfa"));
    EXPECT_FALSE(bag.Exists("ALFA"));
    EXPECT_FALSE(bag.Exists(4));
    EXPECT_FALSE(bag.Exists(nullptr));
    EXPECT_THAT(bag.NewEnum(), ElementsAre("Alfa", "alfa", "è"));
    bag.Remove("alfa");
    bag.Remove(1);
    EXPECT_EQ(bag.JSON(), R"({"è":true})");
}

TEST(JsonBag, ArraysAppendAndReplace) {
    JsonBag bag;
    bag.IsArray(true);
    bag.Item(nullptr, 1);
    bag.Item(99, 2);
    bag.Item(1, "uno");
    bag.Item(3, 2.5);
    EXPECT_EQ(bag.JSON(), R"(["uno",2,2.5])");
    EXPECT_FALSE(bag.Exists("uno"));
    bag.Remove(2);
    EXPECT_EQ(bag.JSON(), R"(["uno",2.5])");
    bag.Clear();
    EXPECT_FALSE(bag.IsArray());
    EXPECT_EQ(bag.JSON(), "{}");
}

TEST(JsonBag, ChildrenAreOwnedAndTakeOverTheTypeOfNumbers) {
    JsonBag bag;
    bag.DecimalMode(true);
    JsonBag& dati = bag.AddNewObject("dati");
    JsonBag& lista = dati.AddNewArray("lista");
    JsonBag& ultimo = lista.AddNewObject(nullptr);
    for (int i = 0; i < 40; ++i)
        dati.Item("m" + std::to_string(i), i); // the others stay where they are
    EXPECT_TRUE(ultimo.DecimalMode());
    ultimo.JSON("{\"x\":0.10}");
    EXPECT_EQ(std::get<Decimale>(ultimo.Item("x")), Decimale::daTesto("0.1"));
    EXPECT_EQ(&comeBag(dati.Item("lista")), &lista);
    EXPECT_EQ(lista.JSON(), R"([{"x":0.1}])");

    JsonBag nuovo;
    nuovo.Item("y", 1);
    dati.Item("lista", std::move(nuovo));
    EXPECT_EQ(comeBag(bag.Item("dati")).JSON().substr(0, 24), R"({"lista":{"y":1},"m0":0,)");
    bag = std::move(comeBag(dati.Item("lista"))); // out of the midst of what it replaces
    EXPECT_EQ(bag.JSON(), R"({"y":1})");
    EXPECT_EQ(fallimento([&] { static_cast<void>(comeBag(bag.Item("y"))); }).first, 13);
}

TEST(JsonBag, ManyNamesAreFoundAfterEveryKindOfChange) {
    JsonBag bag;
    const auto nome = [](int i) { return "nome lungo numero " + std::to_string(i); };
    for (int i = 0; i < 1000; ++i)
        bag.Item(nome(i), i);
    for (int i = 0; i < 1000; i += 3)
        bag.Remove(nome(i));
    for (int i = 1000; i < 1100; ++i)
        bag.Item(nome(i), i);
    bag.Item(nome(500), -500);
    EXPECT_EQ(bag.Count(), 766u);
    for (int i = 0; i < 1100; ++i) {
        ASSERT_EQ(bag.Exists(nome(i)), i >= 1000 || i % 3 != 0) << i;
        if (bag.Exists(nome(i))) {
            ASSERT_EQ(std::get<std::int32_t>(bag.Item(nome(i))), i == 500 ? -500 : i);
        }
    }
    EXPECT_EQ(bag.Name(766), nome(1099));
}

TEST(JsonBag, EachMisuseHasItsNumberAndText) {
    JsonBag oggetto;
    oggetto.Item("a", 1);
    JsonBag array;
    array.IsArray(true);
    array.Item(nullptr, 1);
    const std::string perIndice = "Array values can only be acessed by index";
    const std::string cambioArray = "Array values can only be changed by index or added via Null";
    const std::string cambioOggetto = "Object values can only be changed or added by key not by index";
    const std::string tardi = "Cannot change IsArray setting after items have been added";
    const std::string chiave = "Key must be String or an index)";
    const std::string fuori = "Indice non incluso nell'intervallo";
    const struct {
        const char* caso;
        std::function<void()> azione;
        Fallimento atteso;
    } casi[] = {
        {"IsArray late", [&] { oggetto.IsArray(true); }, {5, tardi}},
        {"null key", [&] { (void)oggetto.Item(nullptr); }, {94, chiave}},
        {"null key, array", [&] { (void)array.Item(nullptr); }, {94, chiave}},
        {"array by name", [&] { (void)array.Item("a"); }, {5, perIndice}},
        {"array set by name", [&] { array.Item("a", 1); }, {5, cambioArray}},
        {"array child by name", [&] { array.AddNewArray("a"); }, {5, cambioArray}},
        {"object set by place", [&] { oggetto.Item(1, 1); }, {5, cambioOggetto}},
        {"object set by null", [&] { oggetto.AddNewObject(nullptr); }, {5, cambioOggetto}},
        {"name in array", [&] { (void)array.Name(1); }, {5, "Array items do not have names"}},
        {"names of array", [&] { (void)array.NewEnum(); }, {5, "Arrays must be iterated using index values"}},
        {"removed by name", [&] { array.Remove("a"); }, {5, "Must remove by index for arrays"}},
        {"no such name", [&] { oggetto.Remove("b"); }, {5, "Chiamata di routine o argomento non valido"}},
        {"no such place", [&] { oggetto.Remove(2); }, {9, fuori}},
        {"place 0", [&] { array.Item(0, 1); }, {9, fuori}},
        {"name 0", [&] { (void)oggetto.Name(0); }, {9, fuori}},
    };
    for (const auto& caso : casi)
        EXPECT_EQ(fallimento(caso.azione), caso.atteso) << caso.caso;
    EXPECT_EQ(oggetto.JSON() + array.JSON(), R"({"a":1}[1])");
}

TEST(JsonBag, AnyDepthIsTakenDownAndTooMuchIsNotWritten) {
    JsonBag radice;
    JsonBag* fondo = &radice;
    for (int i = 1; i < JsonBag::kProfonditaMassima; ++i)
        fondo = &fondo->AddNewObject("f");
    JsonBag copia;
    copia.JSON(radice.JSON());
    EXPECT_EQ(copia.JSON(), radice.JSON());
    for (int i = 0; i < 300'000; ++i)
        fondo = &fondo->AddNewObject("g");
    EXPECT_EQ(fallimento([&] { static_cast<void>(radice.JSON()); }), Fallimento(51, "g, nested too deep"));
}

} // namespace
} // namespace lumigrafo::prova
