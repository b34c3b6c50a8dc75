// SPDX-License-Identifier: MIT
// Which rows a selection shows, what stands in them, and how the keyboard walks them.
#include "editor/settings_keys.h"
#include "properties/element_sheet.h"
#include "properties/pref_sheet.h"
#include "properties/row_edit_fixture.h"
#include "render/sample_families.h"

namespace ornavo::testing {
namespace {

using Texts = std::vector<std::string>;

bool Has(const Sheet& sheet, std::string_view key) {
    return std::any_of(sheet.begin(), sheet.end(), [&](const SheetRow& row) { return row.key == key; });
}

/// A control of any name is selected.
class SheetTest : public RowEditTest {
protected:
    void Select(const char* name, const char* tag = "") {
        selected_.Name = name;
        selected_.Tag = *tag ? tag : selected_.Name == "pMain" ? "Main" : "Button1";
        SelectSample(selected_);
    }
    dbLayoutElement& element() { return Element("Button1"); }
    RowPools& pools() { return panel_->parts().pools; }
    Control selected_{nullptr, ""};
};

TEST(ElementRows, ComeAndGoWithActionTypeAndInfoType) {
    using enum ElementKind;
    const struct {
        ElementKind kind;
        int type, action, info;
        Texts shown, absent;
    } cases[] = {
        {Button, TypeButton, 1, 0, {"ActionType", "Rotation"}, {"Value", "dbScript", "Resizer"}},
        {Button, TypeButton, 10, 0, {"Value"}, {"dbScript"}},
        {Button, TypeButton, 12, 0, {"dbScript"}, {"Value"}},
        {Button, TypePicture, 10, 0, {"dbScript", "Dragger", "IsSearch"}, {"ActionType", "Value"}},
        {Main, TypeButton, 10, 0, {"MarginLeft", "StretchBackground"}, {"ActionType", "Value", "Visible"}},
        {Scrollframe, TypeScrollbar, 0, 0, {"PicOn", "TransparentColor"}, {"Caption", "PicDisabled"}},
        {Info, TypeInfo, 0, 0, {"InfoField", "Seeker", "Font"}, {"VolumeChangeable"}},
        {Info, TypeInfo, 0, 1, {"Seeker", "CapScrollSpeed"}, {"InfoField"}},
        {Info, TypeInfo, 0, 20, {"InfoField", "Seeker"}, {"Value"}},
        {Info, TypeInfo, 0, 5, {"Value", "VolumeChangeable", "Visible"}, {"InfoField", "Seeker", "Font"}},
    };
    for (const auto& row : cases) {
        dbLayoutElement element;
        element.ElementType = row.type;
        element.ActionType = row.action;
        element.InfoType = row.info;
        const Sheet sheet = ElementSheet(row.kind, element);
        for (const std::string& key : row.shown) EXPECT_TRUE(Has(sheet, key)) << row.type << ' ' << key;
        for (const std::string& key : row.absent) EXPECT_FALSE(Has(sheet, key)) << row.type << ' ' << key;
    }
}

TEST(SampleRows, NobodyIsForgotten) {
    const dbSkin skin;
    std::set<std::string> keys;
    for (const SampleFamily& family : SampleFamilies()) {
        const std::string control(family.control);
        const Sheet sheet = SampleSheet(*skin.dbSkinPrefs, control, {7, 8, 44, 40});
        for (const SheetRow& row : sheet) keys.emplace(GetClass(row.key));
        const bool told = sheet.front().caption == std::string(family.heading) + " - 44 x 40 Pixel";
        EXPECT_EQ(told, family.headingSize == HeadingSize::Told) << control;
    }
    for (const dbSkinPrefRef& pref : *skin.dbSkinPrefs)
        EXPECT_TRUE(pref->PrefType == KindHeading || keys.contains(pref->Key)) << pref->Key;
}

TEST_F(SheetTest, ControlsAreReusedAndComeBackAsNew) {
    const auto showAll = [&] {
        for (const char* name : {"btn_SkinProperties", "but_Song", "Element", "pMain", "lbl_SL", "KeyB"})
            Select(name);
        return panel_->findChildren<QWidget*>().size();
    };
    const auto once = showAll();
    EXPECT_EQ(showAll(), once);
    Select("lbl_Kiosk");  // font, colour, boolean, colour: locked boxes and painted ones
    Select("KeyN");       // and now texts on the same boxes
    for (int i = 1; i <= pools().tbx_Prop.Top(); ++i) {
        const RowText& box = pools().tbx_Prop[i];
        if (box.isHidden()) continue;
        EXPECT_EQ(box.Locked(), box.Tag.ends_with(".Font") || Check(box.Tag)) << box.Tag;
        const bool painted = box.Tag.find("Color") != std::string::npos;
        EXPECT_EQ(box.BackColor() != WindowBackground, painted) << box.Tag;
    }
}

TEST_F(SheetTest, ARowsControlsShowItsValue) {
    element().TextColor = ColourOf(0x00FF8000);
    element().Visible = false;
    element().ActionType = 55;
    Element("SearchBox").Visible = false;
    Select("Element");
    EXPECT_EQ(Box("Font")->Text(), "<undefined>");
    EXPECT_TRUE(Box("Font")->Locked());
    EXPECT_EQ(Box("TextColor")->palette().base().color(), QColor(0, 128, 255));
    EXPECT_FALSE(Check("Visible")->Value());
    for (const auto& [key, chosen] :
         {std::pair{"ElementType", int(TypeButton)}, {"ActionType", 55}, {"ShowElement", 1}})
        EXPECT_EQ(Combo(key)->ListIndex(), chosen) << key;
    EXPECT_EQ(Combo("ShowElement")->itemText(5), "SearchBox (hidden)");
    int right = panel_->ScaleWidth();  // of a picture's two buttons, first the outer one
    for (const Pool<RowButton>* pool : {&pools().btn_Prop, &pools().btn_PicEdit})
        for (int i = 1; i <= pool->Top(); ++i) {
            const RowButton& button = (*pool)[i];
            if (button.Tag != "PicOver") continue;
            EXPECT_EQ(button.x() + button.width(), right);
            right = button.x();
        }
    EXPECT_EQ(right, panel_->ScaleWidth() - pools().btn_Prop[1].width() - pools().btn_PicEdit[1].width());
    element().TextColor = ColourOf(0x7F000000);  // no colour: the box stays white
    element().ActionType = 56;
    Select("Element");
    EXPECT_EQ(Box("TextColor")->BackColor(), WindowBackground);
    EXPECT_EQ(Combo("ActionType")->ListIndex(), -1);
}

TEST_F(SheetTest, TabWalksTheValuesAndTheFocusAndTheWidthStay) {
    Select("lbl_Kiosk");
    Box("LA_Font.Font")->setFocus();
    for (const char* key :
         {"LA_TextColor.Value", "LA_Shadow.Value", "LA_ShadowColor.Value", "LA_Font.Font"}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QWidget* wanted = Check(key) ? static_cast<QWidget*>(Check(key)) : Box(key);
        EXPECT_EQ(QApplication::focusWidget(), wanted) << key;
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    panel_->ShowProperties();
    EXPECT_EQ(QApplication::focusWidget(), Box("LA_ShadowColor.Value"));
    EXPECT_FALSE(timer().isActive()) << "filling rows is no edit";
    EXPECT_EQ(panel_->height(), 5 * RowPitch - 1);
    panel_->resize(400, panel_->height());
    EXPECT_EQ(Box("LA_TextColor.Value")->width(), 300);
    panel_->close();
    EXPECT_EQ(settings::PropertiesWidth.Read(), 408 * TwipsPerPixel);
}

}  // namespace
}  // namespace ornavo::testing
