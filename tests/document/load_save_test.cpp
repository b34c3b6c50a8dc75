// SPDX-License-Identifier: MIT
#include "document/fields.h"
#include "document/skin_lines.h"
#include "support.h"

namespace ornavo {
namespace {

using LoadSave = SkinTest;

TEST_F(LoadSave, AnyOrderAndCaseBecomesTheOneForm) {
    const auto fixture = [](const char* name) {
        return TemporaryFolder::Read(fs::path(ORNAVO_SOURCE_DIR "/tests/document/fixtures") / name);
    };
    const dbSkinRef skin = LoadBytes(fixture("messy.xml"), "Folder");
    EXPECT_EQ(skin->SkinName + skin->OldSkinName + skin->BasePath(), "MessyFolder" + folder.string() + "/");
    EXPECT_FALSE(skin->Dirty);
    skin->Dirty = true;
    skin->SaveSkin(false);
    EXPECT_EQ(BytesOf("Messy/SkinSettings.xml"), fixture("messy_saved.xml"));
    EXPECT_EQ(skin->OldSkinName, "Messy");
    EXPECT_FALSE(skin->Dirty);
    // What stands in the one form comes back as it was.
    LoadBytes(fixture("messy_saved.xml"), "Messy")->SaveSkin(false);
    EXPECT_EQ(BytesOf("Messy/SkinSettings.xml"), fixture("messy_saved.xml"));
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
    const std::string skin = "<Skin>\n<Layouts>\n<Layout>\n<Key>L</Key>\n", elements = skin + "<Elements>\n";
    const std::string end = "</Element>\n", a = "<Element>\n<Key>a</Key>\n", b = "<Element>\n<Key>b</Key>\n";
    const std::string close = "</Layout>\n</Layouts>\n</Skin>\n", closeAll = "</Elements>\n" + close;
    const std::string point = "<Point>\n<Order>1</Order>\n</Point>\n", prefs = "<SkinPrefs>\n<SkinPref>\n";
    const std::pair<std::string, const char*> rows[] = {
        {"no tag in sight\n", ""},
        {elements + a + end + b + end + closeAll, "L(ab)"},
        {elements + a + b + end + closeAll, ""},              // one end missing
        {elements + a + end + end + b + end + closeAll, ""},  // one too many
        {elements + a + "</Point>\n" + b + end + closeAll, "L(ab)"},
        {elements + a + end + a + end + closeAll, "L(a)"},
        {elements + "<Element>\n" + end + b + end + closeAll, "L(b)"},
        {elements + a + end, ""},  // cut short
        {skin + "<Points>\n" + point + "</Points>\n<Points></Points>\n" + close, "L(1)"},
        {skin + "<Points>\n" + point + point + "</Points>\n" + close, "L(1)"},
        {"</Skin>\n</Element>\n</Layout>\n</Font>\n</SkinPref>\n" + skin + close, "L()"},
        {prefs + "<Key>k</Key>\n<Value>a</Value>\n</SkinPref>\n<SkinPref>\n<Key>K</Key>\n</SkinPref>\n",
         "k=a"},
        {"<SKIN>\r\n<LAYOUTS>\r\n<LAYOUT>\r\n<KEY>L</KEY>\r\n</LAYOUT>", "L()"},
    };
    for (const auto& [bytes, outline] : rows) EXPECT_EQ(Outline(*LoadBytes(bytes)), outline) << bytes;
}

TEST_F(LoadSave, AFieldKeepsWhatItHadWhenAValueDoesNotFit) {
    LoadBytes(
        "<Skin>\n<SkinWidth>640</SkinWidth>\n<SkinWidth>2147483648</SkinWidth>\n<SkinWidth>wide</"
        "SkinWidth>\n<SkinHeight>480</SkinHeight>\n<SkinHeight>True</SkinHeight>\n");
    EXPECT_EQ(objSkin->SkinWidth, 640);
    EXPECT_EQ(objSkin->SkinHeight, -1);
    fs::remove_all(folder / "Blue");
    objSkin->AddNewLayout("One");
    objSkin->LoadSkin();
    EXPECT_TRUE(objSkin->SkinWidth == 640 && objSkin->dbLayouts->Count() == 1) << "a missing file";
    EXPECT_EQ(objSkin->OldSkinName, "Blue");
}

TEST_F(LoadSave, AFileNamesNoPlaceButAFolder) {
    const auto named = [](const std::string& name) { return "<Skin>\n<SkinName>" + name + "</SkinName>\n"; };
    for (const auto& [name, expected] :
         {std::pair{"../../etc", ".._.._etc"}, {"a\\b:c", "a_b;c"}, {"**", "Blue"}, {"..", "Blue"}})
        EXPECT_EQ(LoadBytes(named(name))->SkinName, expected);
    for (const std::string name : {"1.10", "007", "Wahr"}) {
        EXPECT_EQ(LoadBytes(named(name), name)->SkinName, name);
        objSkin->SaveSkin(false);
        EXPECT_EQ(Load(name)->SkinName, name);
    }
    UseNumberSigns({",", "."});
    EXPECT_EQ(LoadBytes(named("+1.1"), "1.10")->SkinName, "1.10") << "from elsewhere";
    objSkin->SetBasePath((folder / "Skins").string());
    objSkin->SkinName = "../Out";
    EXPECT_THROW(objSkin->SaveSkin(false), Failure);
    EXPECT_FALSE(fs::exists(folder / "Out"));
}

TEST(SkinLines, ALineIsTakenApart) {
    const struct {
        const char *line, *tag, *value;  // "-": a line of structure
    } rows[] = {{"\t<Key>A<B</Key>\r", "Key", "A<B"},
                {"<Points></Points>", "Points", ""},
                {"</Element>", "/Element", "-"},
                {"<Unknown><Deep>x</Deep></Unknown>", "Unknown", "<Deep>x</Deep>"},
                {"<Key>a</Key> <!-- b -->", "Key", "a</Key> "},
                {"<Key>a > b</Key>", "Key", "a > b"},
                {"<a<b>x</a<b>", "a<b", "x</a"},
                {"> backwards <", "", "-"},
                {"<Key>cut", "Key", "-"}};
    for (const auto& row : rows) {
        const TagLine parts = GetTag(TrimTag(row.line));
        EXPECT_EQ(parts.tag, row.tag) << row.line;
        EXPECT_EQ(parts.value.value_or("-"), row.value) << row.line;
        const TagLine plain = PlainLine(row.line).value_or(parts);
        EXPECT_TRUE(plain.tag == parts.tag && plain.value == parts.value) << row.line;
    }
    EXPECT_TRUE(PlainLine(rows[0].line) && PlainLine(rows[1].line));
}

TEST(SkinLines, AValueIsTypedByItsLook) {
    const std::pair<const char*, double> numbers[] = {
        {"007", 7},      {"1e3", 1000},   {"+8.25", 8.25},       {"+-2.5", -1.5},    {"+7.", 7},
        {"+0.05", 0.05}, {"+abc.5", 0.5}, {"+1.99999999999", 1}, {"3000000000", 3e9}};
    for (const auto& [bytes, number] : numbers) EXPECT_EQ(ReadValue(bytes), Value(number)) << bytes;
    for (const char* text : {"WAHR", "+", "", " a "}) EXPECT_EQ(ReadValue(text), Value(text));
    EXPECT_EQ(ReadValue("\x80\xE4"), Value("\u20AC\u00E4"));
    for (const char* flag : {"True", "Wahr"}) EXPECT_EQ(ReadValue(flag), Value(true));
    for (const char* flag : {"False", "Falsch"}) EXPECT_EQ(ReadValue(flag), Value(false));
}

std::string Written(const Value& value) {
    std::string bytes;
    AppendValue(bytes, value);
    return bytes;
}

TEST(SkinLines, NumbersAreWrittenByTheirFloor) {
    std::string texts;
    for (const double number : {8.25, -1.5, 120.0, 7.99999, 0.00005, 0.09375, 0.0001, 1.00001, 2147483647.5})
        texts += Written(number) + " ";
    EXPECT_EQ(texts, "+8.25 +-2.5 120 +7. 0.00005 +0.0938 +0.0001 1.00001 +2147483647.5 ");
    EXPECT_EQ(Written(-3) + Written("12.50") + Written(" <&> \u20AC \u4E2D"), "-3+12.5 <&> \x80 ?");
    EXPECT_EQ(Written(false) + Written("") + Written(Value()), "");
    for (const Value& value : {Value(3e9), Value("3000000000"), Value(-2147483649.0)})
        EXPECT_EQ(FailureNumber([&] { Written(value); }), 6) << value.ToText();
}

TEST_F(LoadSave, TheUsersSignsCountForPlainNumbersOnly) {
    UseNumberSigns({",", "."});
    EXPECT_EQ(ReadValue("1,5"), Value(1.5));
    EXPECT_EQ(ReadValue("1.234"), Value(1234.0));
    EXPECT_EQ(ReadValue("+1.5"), Value(1.5));
    EXPECT_EQ(Written(1.5) + Written("12,50") + Written(0.00001), "+1.5+12.50,00001");
}

/// The fast path of each field against the general one.
TEST(SkinLines, BothPathsAgree) {
    int taken = 0;
    for (const char* bytes :
         {"True", "Wahr",  "False", "Falsch", "true",  "Truely", "",           "0",   "-0", "007",
          "-5",   "--5",   "+5",    "5-",     " 5",    "1e3",    "12.5",       "+7.", "-",  "+",
          ".",    "1,000", "nan",   "x y",    "\xE4x", "x\xE4",  "2147483648", "W"}) {
        for (const Field<dbLayoutElement>& field : Fields<dbLayoutElement>()) {
            dbLayoutElement quick, general;
            const bool isTaken = field.take(quick, bytes);
            taken += isTaken;
            if (isTaken) field.set(general, ReadValue(bytes));
            EXPECT_EQ(field.get(quick), field.get(general)) << field.name << " " << bytes;
        }
        Value quick;
        EXPECT_TRUE(!TakePlain(bytes, quick) || quick == ReadValue(bytes)) << bytes;
    }
    EXPECT_GT(taken, 200);
}

}  // namespace
}  // namespace ornavo
