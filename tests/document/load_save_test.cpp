// SPDX-License-Identifier: MIT
#include <sys/stat.h>

#include "document/fields.h"
#include "document/skin_lines.h"
#include "support.h"
#include "support/failure_number.h"

namespace ornavo {
namespace {

using LoadSave = SkinTest;

TEST_F(LoadSave, AnyOrderAndCaseBecomesTheOneForm) {
    const dbSkinRef skin = LoadBytes(Fixture("messy.xml"), "Folder");
    EXPECT_EQ(skin->SkinName, "Messy");
    EXPECT_EQ(skin->OldSkinName, "Folder");
    EXPECT_EQ(skin->BasePath(), folder.string() + "/");
    EXPECT_FALSE(skin->Dirty);
    EXPECT_EQ(skin->dbLayouts->Item(1)->LayoutName, "Große Party €");
    skin->Dirty = true;
    skin->SaveSkin(false);
    EXPECT_EQ(BytesOf(folder / "Messy/SkinSettings.xml"), Fixture("messy_saved.xml"));
    EXPECT_EQ(skin->OldSkinName, "Messy");
    EXPECT_FALSE(skin->Dirty);
    // What stands in the one form comes back as it was.
    LoadBytes(Fixture("messy_saved.xml"), "Messy")->SaveSkin(false);
    EXPECT_EQ(BytesOf(folder / "Messy/SkinSettings.xml"), Fixture("messy_saved.xml"));
    EXPECT_EQ(BytesOf(folder / "Folder/SkinSettings.xml"), Fixture("messy.xml"));
}

/// The keys of the layouts, each with those of its elements and the orders of its points.
std::string Outline(const dbSkin& skin) {
    std::string text;
    for (const dbLayoutRef& layout : *skin.dbLayouts) {
        text += layout->Key + "(";
        for (const dbLayoutElementRef& element : *layout->dbLayoutElements) text += element->Key;
        for (const dbPointRef& point : *layout->dbPoints) text += std::to_string(point->Order);
        text += ")";
    }
    for (const dbSkinPrefRef& pref : *skin.dbSkinPrefs) text += pref->Key + "=" + pref->value.ToText();
    return text;
}

TEST_F(LoadSave, TheScannerRepairsNothing) {
    const std::string open = "<Skin>\n<Layouts>\n<Layout>\n<Key>L</Key>\n";
    const std::string close = "</Layout>\n</Layouts>\n</Skin>\n";
    const std::string a = "<Element>\n<Key>a</Key>\n", b = "<Element>\n<Key>b</Key>\n", end = "</Element>\n";
    const std::pair<std::string, const char*> rows[] = {
        {"", ""},
        {"no tag in sight\n", ""},
        {open + "<Elements>\n" + a + end + b + end + "</Elements>\n" + close, "L(ab)"},
        {open + "<Elements>\n" + a + b + end + "</Elements>\n" + close, ""},              // one end missing
        {open + "<Elements>\n" + a + end + end + b + end + "</Elements>\n" + close, ""},  // one too many
        {open + "<Elements>\n" + a + "</Point>\n" + b + end + "</Elements>\n" + close, "L(ab)"},
        {open + "<Elements>\n" + a + "<Key>A</Y>\n" + end + b + end + "</Elements>\n" + close, "L(Ab)"},
        {open + "<Elements>\n" + a + end + a + end + "</Elements>\n" + close, "L(a)"},
        {open + "<Elements>\n<Element>\n</Element>\n<Element>\n</Element>\n" + b + end + "</Elements>\n" +
             close,
         "L(b)"},
        {open + "<Elements>\n" + a + end, ""},  // cut short
        {open + "<Points>\n<Point>\n<Order>1</Order>\n</Point>\n</Points>\n<Points></Points>\n" + close,
         "L(1)"},
        {open +
             "<Points>\n<Point>\n<Order>1</Order>\n</Point>\n<Point>\n<Order>1</Order>\n</Point>\n</"
             "Points>\n" +
             close,
         "L(1)"},
        {open + close + open + close, "L()"},
        {"</Skin>\n</Element>\n</Layout>\n</Font>\n</SkinPref>\n" + open + close, "L()"},
        {"<SkinPrefs>\n<SkinPref>\n<Key>k</Key>\n<Value>a</Value>\n</SkinPref>\n<SkinPref>\n<Key>K</Key>\n"
         "<Value>b</Value>\n</SkinPref>\n</SkinPrefs>\n",
         "k=a"},
        {"<SkinPrefs>\n<Points>\n<SkinPref>\n<Key>k</Key>\n</SkinPref>\n</Points>\n</SkinPrefs>\n", "k="},
        {"<SKIN>\r\n<LAYOUTS>\r\n<LAYOUT>\r\n<KEY>L</KEY>\r\n</LAYOUT>", "L()"},
    };
    for (const auto& [bytes, outline] : rows) EXPECT_EQ(Outline(*LoadBytes(bytes)), outline) << bytes;
}

TEST_F(LoadSave, ALineIsOfAnyLength) {
    const std::string caption(3'000'000, 'x');
    const dbSkinRef skin =
        LoadBytes("<SkinPrefs>\n<SkinPref>\n<Key>k</Key>\n<Value>" + caption + "</Value>\n</SkinPref>");
    EXPECT_EQ(skin->dbSkinPrefs->Item("k")->value, Value(caption));
}

TEST_F(LoadSave, AFieldKeepsWhatItHadWhenAValueDoesNotFit) {
    const dbSkinRef skin = LoadBytes(
        "<Skin>\n<SkinWidth>640</SkinWidth>\n<SkinWidth>2147483648</SkinWidth>\n<SkinWidth>wide</SkinWidth>\n"
        "<SkinHeight>480</SkinHeight>\n<SkinHeight>True</SkinHeight>\n");
    EXPECT_EQ(skin->SkinWidth, 640);
    EXPECT_EQ(skin->SkinHeight, -1);
}

TEST_F(LoadSave, AFileNamesNoPlaceButAFolder) {
    const std::pair<const char*, const char*> rows[] = {
        {"Red", "Red"},      {"../../etc", ".._.._etc"},
        {"a\\b:c", "a_b;c"}, {"**", "Blue"},
        {"..", "Blue"},      {".", "Blue"},
        {"", "Blue"},        {"<>", "Blue"},
        {"007", "7"},
    };
    for (const auto& [name, expected] : rows)
        EXPECT_EQ(LoadBytes("<Skin>\n<SkinName>" + std::string(name) + "</SkinName>\n")->SkinName, expected);
    for (const char* name : {"1.10", "007", "2e3", "7.99999", "Wahr", "+.a"}) {
        LoadBytes("<Skin>\n<SkinName>" + std::string(name) + "</SkinName>\n", name)->SaveSkin(false);
        const dbSkinRef again = NewSkin(name);
        again->LoadSkin();
        EXPECT_EQ(objSkin->SkinName + "," + again->SkinName, std::string(name) + "," + name);
    }
    UseNumberSigns({",", "."});
    EXPECT_EQ(LoadBytes("<Skin>\n<SkinName>+1.1</SkinName>\n", "1.10")->SkinName, "1.10") << "from elsewhere";
    objSkin->SetBasePath((folder / "Skins").string());
    objSkin->SkinName = "../Out";
    EXPECT_THROW(objSkin->SaveSkin(false), Failure);
    EXPECT_FALSE(fs::exists(folder / "Out"));
}

TEST_F(LoadSave, AMissingFileChangesNothing) {
    objSkin->SkinWidth = 5;
    objSkin->AddNewLayout("One");
    objSkin->LoadSkin();
    EXPECT_EQ(objSkin->SkinWidth, 5);
    EXPECT_EQ(objSkin->dbLayouts->Count(), 1);
    EXPECT_EQ(objSkin->OldSkinName, "Blue");
}

TEST_F(LoadSave, AFileThatCannotBeReadReachesTheCaller) {
    const fs::path file = folder / "Blue/SkinSettings.xml";
    const auto fails = [] { return FailureNumber([] { objSkin->LoadSkin(); }) != 0; };
    Put(file, "<Skin>\n<SkinWidth>5</SkinWidth>\n</Skin>\n");
    for (const int step : {1, 2, 3}) {
        const FullDisk disk(step, step);
        EXPECT_TRUE(fails()) << "opened, read, and read to its end: step " << step;
    }
    fs::remove(file);
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    EXPECT_TRUE(fails());
    for (const char* where : {"/dev/null", "nowhere", "SkinSettings.xml"}) {
        fs::remove(file);
        fs::create_symlink(where, file);
        EXPECT_TRUE(fails()) << "a link to " << where;
    }
    EXPECT_EQ(objSkin->SkinWidth, 0) << "the skin is as it was";
}

TEST_F(LoadSave, ALinkIsReadAndReplaced) {
    const std::string text = "<Skin>\n<SkinWidth>5</SkinWidth>\n</Skin>\n";
    Put(folder / "Elsewhere.xml", text);
    fs::create_directories(folder / "Blue");
    fs::create_symlink("../Elsewhere.xml", folder / "Blue/SkinSettings.xml");
    objSkin->LoadSkin();
    EXPECT_EQ(objSkin->SkinWidth, 5);
    objSkin->SaveSkin(false);
    EXPECT_EQ(BytesOf(folder / "Elsewhere.xml"), text);
    EXPECT_EQ(scratch.Files("Blue").size(), 1u) << "a file of its own";
}

TEST_F(LoadSave, TheSettingsFileIsFoundInAnyCase) {
    Put(folder / "Blue/skinSETTINGS.xml", "<Skin>\n<SkinWidth>5</SkinWidth>\n");
    const dbSkinRef skin = NewSkin("blue");
    skin->LoadSkin();
    EXPECT_EQ(skin->SkinWidth, 5);
    skin->SaveSkin(false);
    EXPECT_EQ(scratch.Files().size(), 1u);
    EXPECT_NE(BytesOf(folder / "Blue/skinSETTINGS.xml").find("<SkinName>blue<"), std::string::npos);
}

TEST_F(LoadSave, ManyOrdersTakeOnePass) {
    const dbLayoutRef layout = objSkin->AddNewLayout("Many");
    constexpr int Count = 100'000;
    for (int order = Count; order > 0; --order) layout->dbPoints->Add(order);
    objSkin->SaveSkin(false);
    const dbSkinRef read = NewSkin("Blue");
    read->LoadSkin();
    const dbPoints& points = *read->dbLayouts->Item(1)->dbPoints;
    ASSERT_EQ(points.Count(), Count);
    for (const int place : {1, 2, 77'777, Count}) EXPECT_EQ(points.Item(place)->Order, place);
}

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

std::string Written(const Value& value) {
    std::string bytes;
    AppendValue(bytes, value);
    return bytes;
}

TEST(SkinLines, TheUsersSignsCountForPlainNumbersOnly) {
    UseNumberSigns({",", "."});
    EXPECT_EQ(ReadValue("1,5"), Value(1.5));
    EXPECT_EQ(ReadValue("1.234"), Value(1234.0));
    EXPECT_EQ(ReadValue("+1.5"), Value(1.5));
    EXPECT_EQ(Written(1.5), "+1.5");
    EXPECT_EQ(Written("12,50"), "+12.5");
    EXPECT_EQ(Written(0.00001), "0,00001");
    EXPECT_EQ(Written(1.00001), "1,00001");
    UseNumberSigns({});
}

TEST_F(LoadSave, ATextThatIsANumberStaysWithTheUsersSigns) {
    UseNumberSigns({",", "."});
    for (const std::string caption : {"0,5", "-1,25", "0,00001", "1,00001"}) {
        auto skin = LoadBytes("<Layouts>\n<Layout>\n<Elements>\n<Element>\n<Order>1</Order>\n<Caption>" +
                              caption + "</Caption>\n</Element>\n</Elements>\n</Layout>\n");
        for (int round = 0; round < 3; ++round) {
            EXPECT_EQ(skin->dbLayouts->Item(1)->dbLayoutElements->Item(1)->Caption, caption) << round;
            skin->SaveSkin(false);
            skin->LoadSkin();
        }
    }
    EXPECT_NE(BytesOf(folder / "Blue/SkinSettings.xml").find("<Caption>1,00001<"), std::string::npos);
}

TEST(SkinLines, NumbersAreWrittenByTheirFloor) {
    const std::pair<Value, const char*> rows[] = {
        {8.25, "+8.25"},      {-1.5, "+-2.5"},      {120.0, "120"},
        {-3, "-3"},           {7.99999, "+7."},     {0.00005, "0.00005"},
        {0.09375, "+0.0938"}, {0.0001, "+0.0001"},  {2147483647.5, "+2147483647.5"},
        {"12.50", "+12.5"},   {1.00001, "1.00001"},
    };
    for (const auto& [value, text] : rows) EXPECT_EQ(Written(value), text);
    EXPECT_EQ(Written(Value(" <&> \u20AC \u4E2D")), " <&> \x80 ?");
}

TEST(SkinLines, ValuesWithoutALine) {
    for (const Value& value : {Value(false), Value(""), Value()}) EXPECT_EQ(Written(value), "");
    for (const Value& value : {Value(3e9), Value("3000000000"), Value(-2147483649.0)})
        EXPECT_EQ(FailureNumber([&] { Written(value); }), 6) << value.ToText();
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
