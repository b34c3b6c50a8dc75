// SPDX-License-Identifier: MIT
#include "base/value.h"

#include <gtest/gtest.h>

#include <cmath>

#include "base/colour.h"
#include "base/keyed_collection.h"
#include "base/numbers.h"
#include "base/text.h"
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
    const std::tuple<std::string, NumberSigns, double> cases[] = {
        {" -7 ", English, -7},        {"+.5", English, 0.5},
        {"1,234.5", English, 1234.5}, {"1.5E-2", English, 0.015},
        {"1.234,5", German, 1234.5},  {"1\u00A0234,5", French, 1234.5},
        {"1e-330", English, 0},       {"\t7", English, 7},
        {"1e308", English, 1e308},    {"123456789012345678", English, 123456789012345678.0}};
    for (const auto& [text, signs, value] : cases) {
        EXPECT_TRUE(IsNumeric(text, signs)) << text;
        EXPECT_EQ(ToNumber(text, signs), value) << text;
    }
    UseNumberSigns(German);
    EXPECT_EQ(ToNumber("1,5"), 1.5);
    UseNumberSigns({});
    EXPECT_EQ(ToNumber("1,5"), 15);
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
    const std::pair<const char*, double> starts[] = {
        {"12abc", 12}, {" 1 2.5 x", 12.5}, {"+7", 7}, {"-.5", -0.5}, {"1,5", 1}, {"abc", 0},
        {"", 0},       {"1e2", 100},       {"1e", 1}, {"-", 0},      {".", 0},   {"1.2.3", 1.2}};
    for (const auto& [text, value] : starts) EXPECT_EQ(Val(text), value) << text;
}

TEST(NumberText, IsPlainUpToFifteenDigits) {
    std::string texts;
    for (const double number : {0.0, -0.0, 0.1 + 0.2, 1.0 / 3, 0.00001, -0.000012345, 1e-15, 1.5e-15,
                                999999999999999.0, 1.5e300, 9999999999999999.0, 1e15, -2147483648.0})
        texts += NumberText(number) + " ";
    EXPECT_EQ(texts,
              "0 0 0.3 0.333333333333333 0.00001 -0.000012345 0.000000000000001 1.5E-15 999999999999999 "
              "1.5E+300 1E+16 1E+15 -2147483648 ");
    EXPECT_EQ(NumberText(-1234.5, ","), "-1234,5");
    EXPECT_EQ(NumberText(0.05, ","), "0,05");
}

TEST(Value, ConvertsByTheUsualRules) {
    const struct {
        Value value;
        bool boolean;
        std::int32_t whole;
        double real;
        const char* text;
    } cases[] = {{Value(), false, 0, 0, ""},         {true, true, -1, -1, "True"},
                 {false, false, 0, 0, "False"},      {2.5, true, 2, 2.5, "2,5"},
                 {std::int32_t{7}, true, 7, 7, "7"}, {"1,000.5", true, 1000, 1000.5, "1,000.5"},
                 {" 0 ", false, 0, 0, " 0 "},        {"0,5", true, 0, 0.5, "0,5"}};
    UseNumberSigns({",", "."});
    for (const auto& c : cases) {
        EXPECT_EQ(c.value.ToBoolean(), c.boolean) << c.text;
        EXPECT_EQ(c.value.ToLong(), c.whole) << c.text;
        EXPECT_EQ(c.value.ToDouble(), c.real) << c.text;
        EXPECT_EQ(c.value.ToText(), c.text);
    }
    UseNumberSigns({});
    EXPECT_TRUE(Value("TRUE").ToBoolean() && !Value("false").ToBoolean());
    const auto font = std::make_shared<Font>();
    EXPECT_EQ(FailureNumber([] { Value("abc").ToBoolean(); }), 13);
    EXPECT_EQ(FailureNumber([] { Value(3e9).ToLong(); }), 6);
    EXPECT_EQ(FailureNumber([&] { Value(font).ToText(); }), 13);
    EXPECT_EQ(FailureNumber([] { Value("x").ToFont(); }), 13);
    EXPECT_TRUE(Value(font).ToFont() == font && !Value().ToFont());
}

TEST(Colour, IsTranslatedAndBlended) {
    EXPECT_EQ(TranslateColor(ButtonFace), 0x00C8D0D4);
    EXPECT_EQ(TranslateColor(ColourOf(0x80000001)), 0x00A56E3A);
    for (const std::uint32_t none : {0x8000001Fu, 0x80010000u, 0x01000000u})
        EXPECT_EQ(TranslateColor(ColourOf(none)), -1) << none;
    EXPECT_EQ(BlendColor(Rgb(110, 100, 100), 0, 128), Rgb(55, 50, 50));
    EXPECT_EQ(BlendColor(ButtonFace, ButtonFace, 77), TranslateColor(ButtonFace));
    EXPECT_EQ(BlendColor(Rgb(255, 0, 85), Rgb(0, 255, 0), 51), Rgb(51, 204, 17));
}

TEST(KeyedCollection, KeepsOrderAndFindsWithoutRegardToCase) {
    KeyedCollection<int> list;
    const auto add = [&](const char* key, int value, int before) {
        list.Insert(key, std::make_shared<int>(value), before);
    };
    add("b", 2, 1);
    add("\u00C4", 3, 2);
    add("a", 1, 1);
    EXPECT_EQ(FailureNumber([&] { add("\u00E4", 9, 1); }), 457);
    for (const int place : {0, 5}) EXPECT_EQ(FailureNumber([&] { add("x", 9, place); }), 9);
    EXPECT_TRUE(*list.Item(1) == 1 && *list.Item(2) == 2 && *list.Item("\u00E4") == 3);
    list.Remove("B");
    list.Remove(1);
    EXPECT_FALSE(list.Find("b") || list.Find("a"));
    EXPECT_EQ(list.Count(), 1);
    for (const int position : {0, 2}) {
        EXPECT_EQ(FailureNumber([&] { list.Item(position); }), 9);
        EXPECT_EQ(FailureNumber([&] { list.Remove(position); }), 9);
    }
    EXPECT_EQ(FailureNumber([&] { list.Item("a"); }), 9);
    EXPECT_EQ(FailureNumber([&] { list.Remove("a"); }), 9);
}

TEST(FileBytes, EveryByteComesBackAndWhatHasNoneIsAQuestionMark) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
    EXPECT_EQ(ToFileBytes(FromFileBytes(all)), all);
    EXPECT_TRUE(FitsFile(FromFileBytes(all)));
    EXPECT_EQ(FromFileBytes("\x80\x8A\x9F\xA0\xC4\xFF"), "\u20AC\u0160\u0178\u00A0\u00C4\u00FF");
    EXPECT_EQ(FromFileBytes("\x81\x8D\x8F\x90\x9D"), "\u0081\u008D\u008F\u0090\u009D");
    const std::pair<const char*, const char*> cases[] = {
        {"a\u4E16b", "a?b"}, {"\U0001F3B5", "?"}, {"\xC3", "?"},           {"x\x80y", "x?y"},
        {"\xC0\xAF", "??"},  {"\xE2\x82", "??"},  {"\xED\xA0\x80", "???"}, {"\u0100", "?"}};
    for (const auto& [text, bytes] : cases) {
        EXPECT_EQ(ToFileBytes(text), bytes);
        EXPECT_FALSE(FitsFile(text)) << bytes;
    }
}

TEST(Text, CaseIsDisregardedForEveryLetterOfTheFile) {
    EXPECT_EQ(LowerText("\u00C4\u00D6\u00DE\u0152\u0160\u017D\u0178"),
              "\u00E4\u00F6\u00FE\u0153\u0161\u017E\u00FF");
    EXPECT_EQ(LowerText("A\u00D7\u00DF\u20AC\u4E16\xC3Z"), "a\u00D7\u00DF\u20AC\u4E16\xC3z");
    EXPECT_TRUE(EqualText("T\u00DCR.Png", "t\u00FCr.pNG") && EqualText("", ""));
    EXPECT_FALSE(EqualText("[", "{") || EqualText("ab", "abc") || EqualText("\u00D7", "\u00F7"));
    EXPECT_EQ(HashText("T\u00DCR.Png"), HashText("t\u00FCr.pNG"));
    EXPECT_EQ(TrimBlanks("  a b \t"), "a b \t");
    EXPECT_TRUE(ContainsSeparator("a\\b") && ContainsSeparator("a/b") && !ContainsSeparator("a:b"));
    EXPECT_EQ(ReplaceAll("aXaX", "X", "aX"), "aaXaaX");
    EXPECT_TRUE(IsAscii("twelve bytes"));
    for (std::size_t at = 0; at < 20; ++at) {
        std::string text(20, 'a');
        text[at] = '\x80';
        EXPECT_FALSE(IsAscii(text)) << at;
    }
}

}  // namespace
}  // namespace ornavo
