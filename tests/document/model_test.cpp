// SPDX-License-Identifier: MIT
#include <set>

#include "document/catalogue.h"
#include "document/fields.h"
#include "support.h"

namespace ornavo {
namespace {

TEST(Model, ALayoutIsKeyedByItsName) {
    dbSkin skin;
    EXPECT_EQ(skin.AddNewLayout("Big Party")->Key, "Big_Party");
    EXPECT_THROW(skin.AddNewLayout("big_party"), Failure);
    EXPECT_EQ(skin.dbLayouts->Count(), 1);
    EXPECT_EQ(dbSkin::GetLayoutKey("2005"), "L2005");
    const dbLayoutElements& admin = *skin.AddNewLayout("Admin-Mode")->dbLayoutElements;
    EXPECT_TRUE(admin.Item("main")->Visible);
    EXPECT_FALSE(admin.Item("SearchBox")->Visible || admin.Item("Scrollbar")->Visible);
    EXPECT_TRUE(skin.AddNewLayout("admin-mode2")->dbLayoutElements->Item("SearchBox")->Visible);
}

TEST(Model, PointsAreFoundByTheirOrder) {
    dbLayout layout;
    layout.AddDummyPoints();
    EXPECT_THROW(layout.dbPoints->Add(3), Failure);
    auto inserted = std::make_shared<dbPoint>();
    inserted->Order = 9;
    layout.dbPoints->InsertObject(inserted, 1);
    EXPECT_EQ(layout.dbPoints->Item(2), inserted);
    EXPECT_EQ(layout.dbPoints->Item("k9"), inserted);
    EXPECT_EQ(layout.dbPoints->GetFromOrder(9), inserted);
    EXPECT_EQ(layout.dbPoints->GetFromOrder(5), nullptr);
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
    for (int times = 0; times < 2; ++times) skin.SetupSkinPrefs();
    ASSERT_EQ(skin.dbSkinPrefs->Count(), 181);
    EXPECT_EQ(skin.dbSkinPrefs->Item(1)->value, Value(5));
    EXPECT_EQ(skin.dbSkinPrefs->Item(1)->Caption, "Hell");
    EXPECT_EQ(skin.dbSkinPrefs->Item(181)->Key, "LA_ShadowColor");
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
