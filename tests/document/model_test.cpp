// SPDX-License-Identifier: MIT
#include "document/layout_edits.h"

#include "document/catalogue.h"
#include "document/codes.h"
#include "document/fields.h"
#include "document/shape_edits.h"
#include "support.h"

namespace ornavo {
namespace {

TEST(LayoutEdits, NumbersFillTheLowestGapAndOrdersStayDense) {
    dbLayout layout;
    const auto add = [&](int type) { return AddNumberedElement(layout, GetTopOrder(layout), type)->Key; };
    std::string keys;
    for (const int type : {TypeButton, TypePicture, TypeVolume, TypeInfo, TypeButton})
        keys += add(type) + " ";
    DeleteElement(layout, "button1");
    for (const int type : {TypeButton, TypeButton}) keys += add(type) + " ";
    EXPECT_EQ(keys, "Button1 Graphic1 Volume1 Info1 Button2 Button1 Button3 ");
    for (const int type : {-1, int(TypeMain), int(TypeSearchBox), 99})
        EXPECT_EQ(AddNumberedElement(layout, 1, type), nullptr);
    for (const auto edit : {DeleteElement, BringElementToFront, SendElementToBack})
        EXPECT_EQ(FailureNumber([&] { edit(layout, "Nobody"); }), 9);
    BringElementToFront(layout, "info1");
    SendElementToBack(layout, "Button3");
    std::string stack;
    for (const dbLayoutElementRef& e : *layout.dbLayoutElements)
        stack += e->Key + "=" + std::to_string(e->Order) + " ";
    EXPECT_EQ(stack, "Button3=1 Graphic1=2 Volume1=3 Button2=4 Button1=5 Info1=6 ");
}

/// X of each point with its order, in the collection's sequence.
std::string Listed(const dbPoints& points) {
    std::string text;
    for (const dbPointRef& point : points)
        text += std::to_string(point->Order) + ":" + std::to_string(point->X) + " ";
    return text;
}

void AddPoint(dbLayout& layout, int order, int x) {
    const dbPoint point{.X = x, .Y = x + 1, .VAlign = 2, .HAlign = 3, .Order = order};
    layout.dbPoints->AddObject(std::make_shared<dbPoint>(point));
}

TEST(ShapeEdits, ADeletedPointLeavesDenseOrdersAndNewKeys) {
    EXPECT_EQ(OrderOfTag(TagOfPoint(12)), 12);
    for (const char* none : {"", "K", "K1x", "Button"}) EXPECT_EQ(OrderOfTag(none), 0) << none;
    dbLayout layout;
    for (const int order : {7, 3, -2, 3000}) AddPoint(layout, order, order);
    RenumberPoints(*layout.dbPoints);
    EXPECT_EQ(Listed(*layout.dbPoints), "1:7 2:3 3:-2 4:3000 ");
    layout = dbLayout();
    for (const int order : {1, 2, 3, 4}) AddPoint(layout, order, order * 10);
    for (const char* none : {"K0", "K5"}) DeleteShapePoint(layout, none);
    EXPECT_EQ(layout.dbPoints->Count(), 4);
    DeleteShapePoint(layout, "K2");
    EXPECT_EQ(Listed(*layout.dbPoints), "1:10 2:30 3:40 ");
    EXPECT_EQ(layout.dbPoints->Find("K3")->X, 40);
    const dbPoint& moved = *layout.dbPoints->Item(2);
    EXPECT_TRUE(moved.Y == 31 && moved.VAlign == 2 && moved.HAlign == 3);
    AddPoint(layout, 0, 50);
    DeleteShapePoint(layout, "K1");
    EXPECT_EQ(Listed(*layout.dbPoints), "1:30 2:40 ") << "what has no order goes too";
    DeleteShapePoint(layout, "K1");
    EXPECT_EQ(Listed(*layout.dbPoints), "1:30 2:40 ") << "two corners stay";
}

TEST(Model, ALayoutIsKeyedByItsNameAndAPointByItsOrder) {
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

TEST(Model, TheCatalogueIsWholeAndUpgrades) {
    dbSkin skin;
    skin.dbSkinPrefs = std::make_shared<dbSkinPrefs>();
    skin.dbSkinPrefs->Add("sp_collight", "Hell", 5, 1);
    for (int times = 0; times < 2; ++times) skin.SetupSkinPrefs();
    ASSERT_EQ(skin.dbSkinPrefs->Count(), std::ssize(Catalogue));
    EXPECT_EQ(skin.dbSkinPrefs->Item(1)->Caption, "Hell");
    std::string values;
    for (const char* key : {"SP_ColLight", "AA_Caption", "SP_ColBack", "PI_HeightFactor", "AA_Shadow"})
        values += skin.dbSkinPrefs->Item(key)->value.ToText() + " ";
    EXPECT_EQ(values, "5 \u00EC 16761024 1.55 True ");
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
}

TEST(Model, EverySavedFieldHasALine) {
    dbSkin skin;
    dbLayoutElement& element = *skin.AddNewLayout("One")->dbLayoutElements->Add(9, "1", TypeButton, 1);
    for (const Field<dbLayoutElement>& field : Fields<dbLayoutElement>())
        if (field.name != "Font") field.set(element, Value("1"));
    element.Font = std::make_shared<Font>();
    const std::string file = skin.FileBytes();
    for (const Field<dbLayoutElement>& field : Fields<dbLayoutElement>())
        EXPECT_EQ(file.find("<" + std::string(field.name) + ">") != std::string::npos, field.saved)
            << field.name;
}

}  // namespace
}  // namespace ornavo
