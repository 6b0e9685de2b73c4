#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <random>

#include "data/NumberText.h"

namespace brask {
namespace {

TEST(NumberText, TheNumberTest) {
    using namespace std::string_literals;
    const std::string zeros(400, '0');
    const std::string nines(20, '9');
    const std::pair<std::string, double> numbers[] = {
        {"0.1", 0.1},      {"  26.1", 26.1}, {" -.5 ", -0.5},  {"+7.", 7},    {"1e3", 1000},
        {"1E-3", 0.001},   {"-0", 0},        {"1e308", 1e308}, {"1e-400", 0}, {"-1e-" + nines, 0},
        {"0e" + nines, 0}, {"0.0e400", 0},   {zeros + "5", 5}};
    for (const auto& [text, value] : numbers) EXPECT_EQ(ParseNumber(text), value) << text;
    EXPECT_EQ(ParseNumber("0." + zeros + "1e401"), 1);
    EXPECT_EQ(ParseNumber("1" + zeros + "e-400"), 1);
    const std::string others[] = {"",    " ",         "abc",   ".",      "+",          "-",   "e5",
                                  "1e",  "1e+",       "1.2.3", "1,5",    "0x10",       "inf", "nan",
                                  "1 2", "--1",       "1e400", "-1e400", "1e" + nines, "12a", "1\n",
                                  "\t1", "1" + zeros, "1\0"s,  "&H10"};
    for (const std::string& text : others) EXPECT_FALSE(ParseNumber(text)) << text;
    EXPECT_EQ(ParseNumber("1,5", ','), 1.5);
    EXPECT_EQ(ParseNumber("1.5", ','), 1.5);
    EXPECT_FALSE(ParseNumber("1.5,2", ','));
}

TEST(NumberText, TheNumberThatATextBeginsWith) {
    const std::pair<const char*, double> cases[] = {
        {"12abc", 12}, {" -3.5.7", -3.5}, {"abc", 0}, {"", 0},      {"1e", 1},
        {"2e+x", 2},   {"5 000", 5},      {"1,5", 1}, {".5.", 0.5}, {"-", 0},
        {"1e400", 0},  {"1e-400", 0},     {"inf", 0}, {"007", 7},   {"&H10", 0}};
    for (const auto& [text, value] : cases) EXPECT_EQ(LeadingNumber(text), value) << text;
}

TEST(NumberText, OneDecimalRoundsHalfAwayFromZero) {
    const std::pair<double, const char*> cases[] = {
        {0.25, "0.3"}, {-0.25, "-0.3"}, {0.05, "0.1"},  {0.15, "0.2"},   {-0.04, "0.0"},
        {-0.0, "0.0"}, {26.1, "26.1"},  {9.96, "10.0"}, {78.98, "79.0"}, {1e6, "1000000.0"}};
    for (const auto& [value, text] : cases) EXPECT_EQ(FormatTenths(value), text);
    EXPECT_EQ(FormatTenths(-1.7976931348623157e308).size(), 312U);
}

TEST(NumberText, WhatIsWrittenReadsBackExactly) {
    std::mt19937_64 random(7);
    for (int i = 0; i < 20000; ++i) {
        const auto value = std::bit_cast<double>(random());
        if (!std::isfinite(value)) continue;
        ASSERT_EQ(ParseNumber(FormatNumber(value)), value);
    }
    EXPECT_EQ(FormatNumber(0.1), "0.1");
    EXPECT_EQ(FormatNumber(-12), "-12");
}

}  // namespace
}  // namespace brask
