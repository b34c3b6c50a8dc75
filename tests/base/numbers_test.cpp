// SPDX-License-Identifier: MIT
#include "base/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <tuple>

#include "support/failure_number.h"

namespace ornavo {
namespace {

const NumberSigns English{".", ","}, German{",", "."}, French{",", "\u00A0"};

TEST(Rounding, TiesGoToEvenAndBeyondTheRangeItFails) {
    constexpr std::int32_t Least = std::numeric_limits<std::int32_t>::min();
    for (const auto& [value, whole] : {std::pair{0.5, 0},
                                       {1.5, 2},
                                       {-2.5, -2},
                                       {2.51, 3},
                                       {2147483647.4, 2147483647},
                                       {-2147483648.5, Least}})
        EXPECT_EQ(ToLong(value), whole);
    EXPECT_EQ(FloorToLong(-1.5), -2);
    EXPECT_EQ(ToInteger(-32768.5), -32768);
    for (const double beyond : {2147483647.5, 2147483648.0, -2147483649.0, 1e300, std::nan("")}) {
        EXPECT_EQ(FailureNumber([&] { ToLong(beyond); }), 6) << beyond;
        EXPECT_EQ(FailureNumber([&] { ToInteger(beyond); }), 6) << beyond;
    }
    EXPECT_EQ(FailureNumber([] { ToInteger(32767.5); }), 6);
    EXPECT_EQ(FailureNumber([] { FloorToLong(-2147483648.5); }), 6);
}

TEST(Numeric, TakesWhatTheUserWrites) {
    const std::string many = "1" + std::string(400, '0') + "e-400";
    const std::tuple<std::string, NumberSigns, double> cases[] = {
        {" -7 ", English, -7},
        {"+.5", English, 0.5},
        {"1,234.5", English, 1234.5},
        {"1,2,3", English, 123},
        {"1.5E-2", English, 0.015},
        {"007", English, 7},
        {"1.234,5", German, 1234.5},
        {"1\u00A0234,5", French, 1234.5},
        {"1e-330", English, 0},
        {"\t7", English, 7},
        {"1e308", English, 1e308},
        {many, English, 1},
        {"123456789012345678", English, 123456789012345678.0}};
    for (const auto& [text, signs, value] : cases) {
        EXPECT_TRUE(IsNumeric(text, signs)) << text;
        EXPECT_EQ(ToNumber(text, signs), value) << text;
    }
    UseNumberSigns(German);
    EXPECT_EQ(ToNumber("1,5"), 1.5);
    EXPECT_TRUE(IsNumeric("1.000"));
    UseNumberSigns({});
    EXPECT_EQ(ToNumber("1,5"), 15);
}

TEST(Numeric, RefusesWhatOnlyLooksAlike) {
    for (const char* text :
         {"",   " ",   "+",   "-",  ".",     "nan",   "inf", "0x1F", "1_000", "1e",         "1e+",
          "e5", "1 2", "--1", ",5", "1.2.3", "1.2,3", "5-",  "1d5x", "7\n",   "1\u00A0000", "\u0661"}) {
        EXPECT_FALSE(IsNumeric(text, English)) << text;
        EXPECT_EQ(FailureNumber([&] { ToNumber(text, English); }), 13) << text;
    }
    for (const char* text : {"1e309", "-2e308", "-1e999", "1e99999999999999999999"}) {
        EXPECT_FALSE(IsNumeric(text, English)) << text;
        EXPECT_EQ(FailureNumber([&] { ToNumber(text, English); }), 6) << text;
    }
    EXPECT_FALSE(IsNumeric("1,5", NumberSigns{".", ""}));
}

TEST(Val, ReadsTheNumberAtTheStart) {
    const std::pair<const char*, double> cases[] = {
        {"12abc", 12}, {" 1 2.5 x", 12.5}, {"+7", 7}, {"-.5", -0.5}, {"1,5", 1}, {"abc", 0},
        {"", 0},       {"1e2", 100},       {"1e", 1}, {"-", 0},      {".", 0},   {"1.2.3", 1.2}};
    for (const auto& [text, value] : cases) EXPECT_EQ(Val(text), value) << text;
}

TEST(NumberText, IsPlainUpToFifteenDigits) {
    for (const auto& [value, text] : {std::pair{0.0, "0"},
                                      {-0.0, "0"},
                                      {0.1 + 0.2, "0.3"},
                                      {1.0 / 3, "0.333333333333333"},
                                      {0.00001, "0.00001"},
                                      {-0.000012345, "-0.000012345"},
                                      {1e-15, "0.000000000000001"},
                                      {1.5e-15, "1.5E-15"},
                                      {999999999999999, "999999999999999"},
                                      {1.5e300, "1.5E+300"},
                                      {9999999999999999.0, "1E+16"},
                                      {1e15, "1E+15"},
                                      {-2147483648.0, "-2147483648"}})
        EXPECT_EQ(NumberText(value), text);
    EXPECT_EQ(NumberText(-1234.5, ","), "-1234,5");
    EXPECT_EQ(NumberText(0.05, ","), "0,05");
}

}  // namespace
}  // namespace ornavo
