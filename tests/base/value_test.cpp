// SPDX-License-Identifier: MIT
#include "base/value.h"

#include <gtest/gtest.h>

#include "base/colour.h"
#include "base/keyed_collection.h"
#include "base/numbers.h"
#include "base/text.h"
#include "support/failure_number.h"

namespace ornavo {
namespace {

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
    EXPECT_EQ(FailureNumber([] { Value("").ToLong(); }), 13);
    EXPECT_EQ(FailureNumber([] { Value("abc").ToBoolean(); }), 13);
    EXPECT_EQ(FailureNumber([] { Value(3e9).ToLong(); }), 6);
    EXPECT_EQ(FailureNumber([&] { Value(font).ToText(); }), 13);
    EXPECT_EQ(FailureNumber([&] { Value(font).ToDouble(); }), 13);
    EXPECT_EQ(FailureNumber([] { Value("x").ToFont(); }), 13);
    EXPECT_TRUE(Value(font).ToFont() == font && !Value().ToFont());
}

TEST(Colour, IsTranslatedAndBlended) {
    EXPECT_EQ(TranslateColor(ButtonFace), 0x00C8D0D4);
    EXPECT_EQ(TranslateColor(ColourOf(0x80000001)), 0x00A56E3A);
    EXPECT_EQ(TranslateColor(ColourOf(0x8000001E)), 0x00C8D0D4);
    for (const std::uint32_t none : {0x8000001Fu, 0x80010000u, 0x01000000u, 0xFFFFFFFFu})
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
    std::vector<int> order;
    for (const auto& item : list) order.push_back(*item);
    EXPECT_EQ(order, (std::vector{1, 2, 3}));
    EXPECT_TRUE(*list.Item("\u00E4") == 3 && *list.Item(1) == 1);
    list.Remove("B");
    list.Remove(1);
    EXPECT_FALSE(list.Find("b") || list.Find("a"));
    EXPECT_EQ(list.Count(), 1);
    for (const int position : {0, 2, -1}) {
        EXPECT_EQ(FailureNumber([&] { list.Item(position); }), 9);
        EXPECT_EQ(FailureNumber([&] { list.Remove(position); }), 9);
    }
    EXPECT_EQ(FailureNumber([&] { list.Item("a"); }), 9);
    EXPECT_EQ(FailureNumber([&] { list.Remove("a"); }), 9);
    add("A", 4, 2);
    EXPECT_EQ(*list.Item("a"), 4);
}

TEST(FileBytes, EveryByteComesBackAndWhatHasNoneIsAQuestionMark) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
    EXPECT_EQ(ToFileBytes(FromFileBytes(all)), all);
    EXPECT_TRUE(FitsFile(FromFileBytes(all)));
    EXPECT_EQ(FromFileBytes("\x80\x8A\x9F\xA0\xC4\xFF"), "\u20AC\u0160\u0178\u00A0\u00C4\u00FF");
    EXPECT_EQ(FromFileBytes("\x81\x8D\x8F\x90\x9D"), "\u0081\u008D\u008F\u0090\u009D");
    const std::pair<const char*, const char*> cases[] = {
        {"a\u4E16b", "a?b"}, {"\U0001F3B5", "?"},     {"e\u0301", "e?"},
        {"\xC3", "?"},       {"x\x80y", "x?y"},       {"\xC0\xAF", "??"},
        {"\xE2\x82", "??"},  {"\xED\xA0\x80", "???"}, {"\xF5\x80\x80\x80", "????"},
        {"\u0100", "?"}};
    for (const auto& [text, bytes] : cases) {
        EXPECT_EQ(ToFileBytes(text), bytes);
        EXPECT_FALSE(FitsFile(text)) << bytes;
    }
}

TEST(Text, CaseIsDisregardedForEveryLetterOfTheFile) {
    EXPECT_EQ(LowerText("Cover ART 12"), "cover art 12");
    EXPECT_EQ(LowerText("\u00C4\u00D6\u00DE\u0152\u0160\u017D\u0178"),
              "\u00E4\u00F6\u00FE\u0153\u0161\u017E\u00FF");
    EXPECT_EQ(LowerText("A\u00D7\u00DF\u20AC\u4E16\xC3Z"), "a\u00D7\u00DF\u20AC\u4E16\xC3z");
    EXPECT_TRUE(EqualText("T\u00DCR.Png", "t\u00FCr.pNG") && EqualText("", ""));
    EXPECT_FALSE(EqualText("[", "{") || EqualText("ab", "abc") || EqualText("\u00D7", "\u00F7"));
    EXPECT_EQ(HashText("T\u00DCR.Png"), HashText("t\u00FCr.pNG"));
}

TEST(Text, SmallRoutines) {
    EXPECT_EQ(TrimBlanks("  a b \t"), "a b \t");
    EXPECT_EQ(TrimBlanks("   "), "");
    EXPECT_TRUE(ContainsSeparator("a\\b") && ContainsSeparator("a/b") && !ContainsSeparator("a:b"));
    EXPECT_EQ(ReplaceAll("aXaX", "X", "aX"), "aaXaaX");
    EXPECT_EQ(ReplaceAll("abc", "", "x"), "abc");
    EXPECT_TRUE(IsAscii("twelve bytes"));
    for (std::size_t at = 0; at < 20; ++at) {
        std::string text(20, 'a');
        text[at] = '\x80';
        EXPECT_FALSE(IsAscii(text)) << at;
    }
}

}  // namespace
}  // namespace ornavo
