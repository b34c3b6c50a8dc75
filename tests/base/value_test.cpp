// SPDX-License-Identifier: MIT
#include "base/value.h"

#include <gtest/gtest.h>

#include "base/colour.h"
#include "base/keyed_collection.h"
#include "base/numbers.h"
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
                 {false, false, 0, 0, "False"},      {2.5, true, 2, 2.5, "2.5"},
                 {std::int32_t{7}, true, 7, 7, "7"}, {"1,000.5", true, 1000, 1000.5, "1,000.5"},
                 {" 0 ", false, 0, 0, " 0 "}};
    UseNumberSigns({",", "."});  // no conversion may ask for the user's signs
    for (const auto& c : cases) {
        EXPECT_EQ(c.value.ToBoolean(), c.boolean) << c.text;
        EXPECT_EQ(c.value.ToLong(), c.whole) << c.text;
        EXPECT_EQ(c.value.ToDouble(), c.real) << c.text;
        EXPECT_EQ(c.value.ToText(), c.text);
    }
    UseNumberSigns({});
    EXPECT_TRUE(Value("TRUE").ToBoolean());
    EXPECT_FALSE(Value("false").ToBoolean());
}

TEST(Value, FailsWhereThereIsNoConversion) {
    const auto font = std::make_shared<Font>();
    EXPECT_EQ(FailureNumber([] { Value("").ToLong(); }), 13);
    EXPECT_EQ(FailureNumber([] { Value("abc").ToBoolean(); }), 13);
    EXPECT_EQ(FailureNumber([] { Value(3e9).ToLong(); }), 6);
    EXPECT_EQ(FailureNumber([&] { Value(font).ToText(); }), 13);
    EXPECT_EQ(FailureNumber([&] { Value(font).ToDouble(); }), 13);
    EXPECT_EQ(FailureNumber([] { Value("x").ToFont(); }), 13);
    EXPECT_EQ(Value(font).ToFont(), font);
    EXPECT_EQ(Value().ToFont(), nullptr);
}

TEST(Colour, TranslatesSystemColours) {
    EXPECT_EQ(TranslateColor(ButtonFace), 0x00C8D0D4);
    EXPECT_EQ(TranslateColor(ColourOf(0x80000001)), 0x00A56E3A);
    EXPECT_EQ(TranslateColor(ColourOf(0x8000001E)), 0x00C8D0D4);
    for (const std::uint32_t none : {0x8000001Fu, 0x80010000u, 0x01000000u, 0xFFFFFFFFu})
        EXPECT_EQ(TranslateColor(ColourOf(none)), -1) << none;
}

TEST(Colour, Blends) {
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
    EXPECT_EQ(FailureNumber([&] { add("x", 9, 5); }), 9);
    EXPECT_EQ(FailureNumber([&] { add("x", 9, 0); }), 9);
    std::vector<int> order;
    for (const auto& item : list) order.push_back(*item);
    EXPECT_EQ(order, (std::vector{1, 2, 3}));
    EXPECT_EQ(*list.Item("\u00E4"), 3);
    EXPECT_EQ(*list.Item(1), 1);

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

}  // namespace
}  // namespace ornavo
