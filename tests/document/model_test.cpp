// SPDX-License-Identifier: MIT
#include <set>

#include "document/catalogue.h"
#include "document/fields.h"
#include "support.h"

namespace ornavo {
namespace {

TEST(Model, ANewLayoutHasItsStandardElements) {
    dbSkin skin;
    const dbLayoutRef party = skin.AddNewLayout("Big Party");
    EXPECT_EQ(party->Key, "Big_Party");
    EXPECT_EQ(party->dbPoints->Count(), 0);
    ASSERT_EQ(party->dbLayoutElements->Count(), 3);
    const dbLayoutElement& box = *party->dbLayoutElements->Item("searchbox");
    EXPECT_EQ(box.Order, 2);
    EXPECT_EQ(box.LeftX, 330);
    EXPECT_EQ(box.BackgroundColor, 0xFFFFFF);
    EXPECT_EQ(box.TransparentColor, ColourOf(0x8000000F));
    EXPECT_TRUE(box.Visible && box.LockTop && !box.LockRight);
    EXPECT_THROW(skin.AddNewLayout("big_party"), Failure);
    EXPECT_EQ(skin.dbLayouts->Count(), 1);

    const dbLayoutElements& admin = *skin.AddNewLayout("Admin-Mode")->dbLayoutElements;
    EXPECT_TRUE(admin.Item("Main")->Visible);
    EXPECT_FALSE(admin.Item("SearchBox")->Visible || admin.Item("Scrollbar")->Visible);
    EXPECT_TRUE(skin.dbLayouts->Add("admin-mode2", "x")->dbLayoutElements->Item("SearchBox")->Visible);
    EXPECT_EQ(dbSkin::GetLayoutKey("2005"), "L2005");
}

TEST(Model, PointsAreFoundByTheirOrder) {
    dbLayout layout;
    layout.AddDummyPoints();
    const dbPoint& third = *layout.dbPoints->GetFromOrder(3);
    EXPECT_TRUE(third.X == 1 && third.Y == 1 && third.HAlign == 2 && third.VAlign == 2);
    EXPECT_THROW(layout.dbPoints->Add(3), Failure);
    auto inserted = std::make_shared<dbPoint>();
    inserted->Order = 9;
    layout.dbPoints->InsertObject(inserted, 1);
    EXPECT_EQ(layout.dbPoints->Item(2), inserted);
    EXPECT_EQ(layout.dbPoints->Item("k9"), inserted);
    EXPECT_EQ(layout.dbPoints->GetFromOrder(5), nullptr);
    dbLayoutElements elements;
    elements.Add(1, "Main", 0, 0);
    auto first = std::make_shared<dbLayoutElement>();
    first->Key = "main";
    EXPECT_THROW(elements.AddObject(first), Failure);
    first->Key = "Low";
    elements.AddObjectToFirst(first);
    EXPECT_EQ(elements.Item(1), first);
}

TEST(Model, TheCatalogueIsWholeAndUpgrades) {
    std::map<int, int> counts;
    std::set<std::string_view> keys;
    for (const CatalogueRow& row : Catalogue) {
        ++counts[row.prefType];
        keys.insert(row.key);
    }
    EXPECT_EQ(keys.size(), 181u);
    EXPECT_EQ(counts, (std::map<int, int>{
                          {0, 27}, {1, 35}, {2, 36}, {3, 9}, {4, 16}, {5, 35}, {6, 5}, {11, 11}, {14, 7}}));
    dbSkin skin;
    skin.dbSkinPrefs = std::make_shared<dbSkinPrefs>();
    skin.dbSkinPrefs->Add("sp_collight", "Hell", 5, 1);
    for (int times = 0; times < 2; ++times) {
        skin.SetupSkinPrefs();
        ASSERT_EQ(skin.dbSkinPrefs->Count(), 181);
        EXPECT_EQ(skin.dbSkinPrefs->Item(1)->value, Value(5));
        EXPECT_EQ(skin.dbSkinPrefs->Item(1)->Caption, "Hell");
        EXPECT_EQ(skin.dbSkinPrefs->Item(2)->Key, "SP_BackLabel");
        EXPECT_EQ(skin.dbSkinPrefs->Item(181)->Key, "LA_ShadowColor");
    }
    EXPECT_EQ(skin.dbSkinPrefs->Item("AA_Caption")->value, Value("\u00EC"));
    EXPECT_EQ(skin.dbSkinPrefs->Item("SP_ColBack")->value, Value(0xFFC0C0));
    EXPECT_EQ(skin.dbSkinPrefs->Item("PI_HeightFactor")->value, Value(1.55));
    EXPECT_EQ(skin.dbSkinPrefs->Item("AA_Shadow")->value, Value(true));
}

TEST(Model, FieldsAreReachedByName) {
    dbLayoutElement element;
    SetField(element, "LEFTX", Value("12.5"));
    EXPECT_EQ(element.LeftX, 12);
    SetField(element, "rotation", Value(true));
    EXPECT_EQ(GetField(element, "Rotation"), Value(-1.0));
    EXPECT_THROW(SetField(element, "LeftX", Value("left")), Failure);
    EXPECT_EQ(element.LeftX, 12);
    EXPECT_THROW(GetField(element, "Left"), Failure);
    EXPECT_EQ(Fields<dbLayoutElement>().size(), 64u);
    dbSkin skin;
    SetField(skin, "basepath", Value("c:\\Skins"));
    EXPECT_EQ(skin.BasePath(), "c:\\Skins\\");
    dbSkinPref pref;
    SetField(pref, "value", Value(0.5));
    EXPECT_EQ(pref.value, Value(0.5));
}

}  // namespace
}  // namespace ornavo
