// SPDX-License-Identifier: MIT
#include "document/skin_lines.h"

#include "document/fields.h"
#include "support.h"
#include "support/failure_number.h"

namespace ornavo {
namespace {

TEST(SkinLines, ALineIsTakenApart) {
    struct Row {
        const char *line, *tag, *value;  // no value: a line of structure
    };
    const Row rows[] = {
        {"\t<Key>A<B</Key>\r", "Key", "A<B"},
        {"<Points></Points>", "Points", ""},
        {"</Element>", "/Element", nullptr},
        {"<Unknown><Deep>x</Deep></Unknown>", "Unknown", "<Deep>x</Deep>"},
        {"<Key>a</Key> <!-- b -->", "Key", "a</Key> "},
        {"<X>5</Y>", "X", "5"},
        {"<>x</>", "", "x"},
        {"> backwards <", "", nullptr},
        {"<Key>cut", "Key", nullptr},
        {"", "", nullptr},
    };
    for (const Row& row : rows) {
        const TagLine parts = GetTag(TrimTag(row.line));
        EXPECT_EQ(parts.tag, row.tag) << row.line;
        EXPECT_EQ(parts.value.has_value(), row.value != nullptr) << row.line;
        if (parts.value && row.value) {
            EXPECT_EQ(*parts.value, row.value) << row.line;
        }
    }
}

TEST(SkinLines, AValueIsTypedByItsLook) {
    const std::pair<const char*, Value> rows[] = {
        {"True", true},
        {"Wahr", true},
        {"False", false},
        {"WAHR", "WAHR"},
        {"007", 7.0},
        {"1e3", 1000.0},
        {" 5 ", 5.0},
        {"+8.25", 8.25},
        {"+-2.5", -1.5},
        {"+7.", 7.0},
        {"+0.05", 0.05},
        {"+abc.5", 0.5},
        {"+1.99999999999", 1.0},
        {"+.5", 0.5},
        {"1,234.5", 1234.5},
        {"inf", "inf"},
        {"1_000", "1_000"},
        {"+", "+"},
        {"", ""},
        {" a ", " a "},
        {"\x80\xE4", "\u20AC\u00E4"},
        {"3000000000", 3e9},
    };
    for (const auto& [bytes, value] : rows)
        EXPECT_EQ(ReadValue(bytes), value) << '"' << bytes << "\" gives " << ReadValue(bytes).ToText();
}

TEST(SkinLines, TheUsersSignsCountForPlainNumbersOnly) {
    UseNumberSigns({",", "."});
    EXPECT_EQ(ReadValue("1,5"), Value(1.5));
    EXPECT_EQ(ReadValue("1.234"), Value(1234.0));
    EXPECT_EQ(ReadValue("+1.5"), Value(1.5));
    EXPECT_EQ(GetNumericValue(1.5), "+1.5");
    EXPECT_EQ(GetNumericValue("12,50"), "+12.5");
    EXPECT_EQ(GetNumericValue(0.00001), "1E-05");
    EXPECT_EQ(GetNumericValue(1.00001), "1,00001");
    UseNumberSigns({});
}

TEST(SkinLines, NumbersAreWrittenByTheirFloor) {
    const std::pair<Value, const char*> rows[] = {
        {8.25, "+8.25"},      {-1.5, "+-2.5"},      {120.0, "120"},
        {-3, "-3"},           {7.99999, "+7."},     {0.00005, "5E-05"},
        {0.09375, "+0.0938"}, {0.0001, "+0.0001"},  {2147483647.5, "+2147483647.5"},
        {"12.50", "+12.5"},   {1.00001, "1.00001"},
    };
    for (const auto& [value, text] : rows) {
        EXPECT_EQ(GetNumericValue(value), text);
        EXPECT_EQ(WriteXML("X", value), "<X>" + std::string(text) + "</X>");
    }
    EXPECT_EQ(WriteXML("X", Value(" <&> \u20AC \u4E2D")), "<X> <&> \x80 ?</X>");
}

TEST(SkinLines, ValuesWithoutALine) {
    const std::pair<Value, int> rows[] = {{false, 513}, {"", 513},         {Value(), 513},
                                          {3e9, 6},     {"3000000000", 6}, {-2147483649.0, 6}};
    for (const auto& [value, number] : rows) {
        EXPECT_EQ(FailureNumber([&, v = value] { WriteXML("X", v); }), number) << value.ToText();
    }
}

/// The short road of each field against the general one, on what may look like something else.
TEST(SkinLines, BothRoadsAgree) {
    const char* const odd[] = {"True",  "Wahr",  "False",     "Falsch",     "true",        "Truely", "",
                               "0",     "-0",    "007",       "-5",         "--5",         "+5",     "5-",
                               " 5",    "1e3",   "e3",        "12.5",       "+7.",         "-",      "+",
                               ".",     "1,000", "nan",       "inf",        "x y",         "A<B",    "\xE4x",
                               "x\xE4", "x\x81", "999999999", "2147483648", "-2147483648", "W"};
    int taken = 0;
    for (const char* bytes : odd)
        for (const Field<dbLayoutElement>& field : Fields<dbLayoutElement>()) {
            dbLayoutElement quick, general;
            if (!field.take(quick, bytes)) {
                EXPECT_EQ(field.get(quick), field.get(dbLayoutElement())) << field.name << " " << bytes;
                continue;
            }
            ++taken;
            field.set(general, ReadValue(bytes));
            EXPECT_EQ(field.get(quick), field.get(general)) << field.name << " " << bytes;
        }
    EXPECT_GT(taken, 200);
    for (const char* bytes : odd) {
        Value quick;
        if (TakePlain(bytes, quick)) {
            EXPECT_EQ(quick, ReadValue(bytes)) << bytes;
        }
    }
}

}  // namespace
}  // namespace ornavo
