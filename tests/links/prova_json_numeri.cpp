#include "links/json_bag.h"
#include "tests/sostegno/guasto_atteso.h"

#include <cfloat>
#include <clocale>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace lumigrafo::prova {
namespace {

std::string scritto(Valore valore) {
    JsonBag bag;
    bag.IsArray(true);
    bag.Item(nullptr, std::move(valore));
    const std::string testo = bag.JSON();
    return testo.substr(1, testo.size() - 2);
}

/// A number's text read and written again; the failure's number if it isn't one.
std::string riscritto(const std::string& testo, bool decimale) {
    JsonBag bag;
    bag.DecimalMode(decimale);
    const Fallimento esito = fallimento([&] { bag.JSON("[" + testo + "]"); });
    return esito.first != 0 ? std::to_string(esito.first) : bag.JSON().substr(1, bag.JSON().size() - 2);
}

TEST(JsonNumeri, ReadInBothModes) {
    const struct {
        std::string testo, doppio, decimale;
    } casi[] = {
        {"0", "0", "0"},
        {"-0", "0", "0"},
        {"-0.0", "0", "0"},
        {"007", "7", "7"},
        {"1.", "1", "1"},
        {"1.e2", "100", "100"},
        {"0.10", "0.1", "0.1"},
        {"-12.50E+1", "-125", "-125"},
        {"1e-5", "1e-05", "0.00001"},
        {"0.0001", "0.0001", "0.0001"},
        {"1e15", "1e+15", "1000000000000000"},
        {"999999999999999", "999999999999999", "999999999999999"},
        {"0.30000000000000004", "0.3", "0.30000000000000004"},
        {"1234567890123456789012345678", "1.23456789012346e+27", "1234567890123456789012345678"},
        {"-0.1234567890123456789012345678", "-0.123456789012346", "-0.1234567890123456789012345678"},
        {"79228162514264337593543950335", "7.92281625142643e+28", "79228162514264337593543950335"},
        {"79228162514264337593543950335.4", "7.92281625142643e+28", "79228162514264337593543950335"},
        {"79228162514264337593543950335.5", "7.92281625142643e+28", "6"},
        {"79228162514264337593543950336", "7.92281625142643e+28", "6"},
        {"7.9228162514264337593543950335", "7.92281625142643", "7.9228162514264337593543950335"},
        {"7.92281625142643375935439503355", "7.92281625142643", "7.922816251426433759354395034"},
        {"1.00000000000000000000000000005", "1", "1"},
        {"1.00000000000000000000000000015", "1", "1.0000000000000000000000000002"},
        {"1.000000000000000000000000000050001", "1", "1.0000000000000000000000000001"},
        {"6e-29", "6e-29", "0.0000000000000000000000000001"},
        {"5e-29", "5e-29", "0"},
        {"9e-30", "9e-30", "0"},
        {"1e28", "1e+28", "10000000000000000000000000000"},
        {"1e29", "1e+29", "6"},
        {"0e999999999999999999", "0", "0"},
        {"1e-999999999999999999", "0", "0"},
        {"-0.0001e-400", "0", "0"},
        {"1e999999999999999999", "6", "6"},
        {"1" + std::string(400, '0') + "e-400", "1", "1"},
        {"0." + std::string(400, '0') + "1e401", "1", "1"},
        {"1e3.4", "6", "6"},
        {"1e5+3", "6", "6"},
        {"1E", "6", "6"},
        {"1E+", "6", "6"},
        {"1E3-", "6", "6"},
    };
    for (const auto& [testo, doppio, decimale] : casi) {
        EXPECT_EQ(riscritto(testo, false), doppio) << testo;
        EXPECT_EQ(riscritto(testo, true), decimale) << testo;
    }
}

TEST(JsonNumeri, WrittenByType) {
    std::setlocale(LC_ALL, "it_IT.UTF-8"); // a comma, where the machine has it, must not come out
    const struct {
        std::string testo, atteso;
    } casi[] = {
        {scritto(1.5), "1.5"},
        {scritto(1.0 / 3), "0.333333333333333"},
        {scritto(2.0 / 3), "0.666666666666667"},
        {scritto(-0.00012345), "-0.00012345"},
        {scritto(0.00001), "1e-05"},
        {scritto(99999999999.9999), "99999999999.9999"},
        {scritto(0.1 + 0.2), "0.3"},
        {scritto(DBL_MAX), "1.7976931348623157e+308"},
        {scritto(0.1F), "0.1"},
        {scritto(16777216.0F), "1.677722e+07"},
        {scritto(-0.0F), "0"},
        {scritto(std::int16_t{-32768}), "-32768"},
        {scritto(std::uint8_t{255}), "255"},
        {scritto(std::numeric_limits<std::int32_t>::min()), "-2147483648"},
        {scritto(true), "true"},
        {scritto(false), "false"},
        {scritto(Valuta{125000}), "12.5"},
        {scritto(Valuta{-1}), "-0.0001"},
        {scritto(Valuta{0}), "0"},
        {scritto(Valuta{100000}), "10"},
        {scritto(Valuta{std::numeric_limits<std::int64_t>::min()}), "-922337203685477.5808"},
        {scritto(Decimale(-70)), "-70"},
        {scritto(std::unique_ptr<JsonBag>()), "null"},
    };
    for (const auto& [testo, atteso] : casi)
        EXPECT_EQ(testo, atteso);
    std::setlocale(LC_ALL, "C");
}

/// The short ways must not differ from the long one.
TEST(JsonNumeri, EveryDoubleIsWrittenWithItsFifteenDigits) {
    std::mt19937_64 caso(20240309);
    char atteso[40];
    for (int i = 0; i < 20'000; ++i) {
        const auto intero = static_cast<double>(static_cast<std::int64_t>(caso()) >> caso() % 64);
        const double valore = i % 4 > 0 ? intero / std::pow(10, caso() % 25)
                                        : std::ldexp(intero, static_cast<int>(caso() % 1800) - 900);
        std::snprintf(atteso, sizeof atteso, "%.15g", valore);
        ASSERT_EQ(scritto(valore), valore == 0 ? "0" : atteso);
        ASSERT_EQ(riscritto(atteso, false), valore == 0 ? "0" : atteso);
    }
}

TEST(JsonNumeri, WhatHasNoFormIsRefusedByName) {
    const auto fallisce = [](Valore valore) {
        JsonBag bag;
        bag.AddNewArray("primo").AddNewObject(nullptr).Item("prezzo", std::move(valore));
        return fallimento([&] { static_cast<void>(bag.JSON()); });
    };
    EXPECT_EQ(fallisce(HUGE_VAL), Fallimento(51, "prezzo, value inf failed to serialize"));
    EXPECT_EQ(fallisce(-HUGE_VALF), Fallimento(51, "prezzo, value -inf failed to serialize"));
    EXPECT_EQ(fallisce(DataOra{{2024, 3, 9}, 13, 0, 0}),
              Fallimento(51, "prezzo, unknown/unsupported type = 7"));
    EXPECT_EQ(fallimento([] { scritto(std::nan("")); }), Fallimento(51, ", value nan failed to serialize"));
}

} // namespace
} // namespace lumigrafo::prova
