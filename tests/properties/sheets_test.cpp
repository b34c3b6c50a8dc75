// SPDX-License-Identifier: MIT
// Which rows a selection shows, what stands in them, and how the keyboard walks them.
#include <QAbstractItemView>
#include <QAccessible>
#include <QHelpEvent>

#include "editor/settings_keys.h"
#include "properties/element_sheet.h"
#include "properties/pref_sheet.h"
#include "properties/row_edit_fixture.h"
#include "render/sample_families.h"

namespace ornavo::testing {
namespace {

using Texts = std::vector<std::string>;

Texts Headings(const Sheet& sheet) {
    Texts texts;
    for (const SheetRow& row : sheet)
        if (row.kind == KindHeading) texts.push_back(row.caption);
    return texts;
}

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
        {SearchBox, TypeSearchBox, 0, 0, {"Font", "ShowBorder"}, {"BorderColor"}},
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
    std::string rows;
    std::set<std::string> keys;
    for (const SampleFamily& family : SampleFamilies()) {
        const std::string control(family.control);
        const Sheet sheet = SampleSheet(*skin.dbSkinPrefs, control, {7, 8, 44, 40});
        rows += control + " " + std::to_string(sheet.size()) + " ";
        for (const SheetRow& row : sheet) keys.emplace(GetClass(row.key));
        EXPECT_EQ(sheet.front().kind, KindHeading) << control;
        const bool told = sheet.front().caption == std::string(family.heading) + " - 44 x 40 Pixel";
        EXPECT_EQ(told, family.headingSize == HeadingSize::Told) << control;
    }
    EXPECT_EQ(rows,
              "but_Song 44 but_Song2 31 but_AddAll 21 but_Info 24 KeyN 14 KeyB 16 KeyE 14 KeyU 16 KeyS 14 "
              "lbl_SL 24 lbl_Kiosk 5 but_Picture 22 btn_SkinProperties 25 cmd_Button 1 cmd_Button2 1 ");
    for (const dbSkinPrefRef& pref : *skin.dbSkinPrefs)
        EXPECT_TRUE(pref->PrefType == KindHeading || keys.contains(pref->Key)) << pref->Key;
    EXPECT_EQ(Headings(SampleSheet(*skin.dbSkinPrefs, "but_Song", {})),
              (Texts{"Main Button (Song & Artist)", "Song", "Artist", "Pictures", "Misc", "Icons"}));
    EXPECT_TRUE(SampleSheet(*skin.dbSkinPrefs, "ScrollBar", {}).empty());
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
    form_->selection().Clear();
    panel_->ShowProperties();
    EXPECT_TRUE(Box("KBN_Picture.Value")) << "nothing selected keeps the old rows";
}

TEST_F(SheetTest, ARowsControlsShowItsValueAndStandInItsPlace) {
    element().TextColor = ColourOf(0x00FF8000);
    element().Visible = false;
    element().PicOver = "over.png";
    Select("Element");
    EXPECT_EQ(Box("Font")->Text(), "<undefined>");
    EXPECT_TRUE(Box("Font")->Locked());
    EXPECT_EQ(Box("TextColor")->palette().base().color(), QColor(0, 128, 255));
    EXPECT_FALSE(Check("Visible")->Value());
    const RowText& over = *Box("PicOver");
    EXPECT_EQ(over.y() % RowPitch, 0);
    const int right = panel_->ScaleWidth();
    int found = 0;
    for (const Pool<RowButton>* pool : {&pools().btn_Prop, &pools().btn_PicEdit})
        for (int i = 1; i <= pool->Top(); ++i) {
            const RowButton& button = (*pool)[i];
            if (button.Tag != "PicOver" || button.box != &over || button.kind != KindPicture) continue;
            ++found;
            const bool edits = pool == &pools().btn_PicEdit;
            EXPECT_EQ(button.toolTip(), edits ? "Edit Picture" : "Select (F4)");
            EXPECT_EQ(button.y(), over.y() - 1);
            EXPECT_EQ(button.x() + button.width(), edits ? right - button.width() : right);
        }
    EXPECT_EQ(found, 2);
    element().TextColor = ColourOf(0x7F000000);  // no colour: the box stays white
    Select("Element");
    EXPECT_EQ(Box("TextColor")->BackColor(), WindowBackground);
}

TEST_F(SheetTest, TipsTellWhatIsNotSeenAndARowIsReadAloudOnce) {
    element().PicOver = "old.png";
    element().PicDown = "lost.png";
    Select("Element");
    std::map<QString, int> read;
    for (QWidget* part : panel_->findChildren<QWidget*>()) {
        QAccessibleInterface* told = QAccessible::queryAccessibleInterface(part);
        if (told && !told->state().invisible) ++read[told->text(QAccessible::Name).trimmed()];
    }
    for (const char* row : {"Name", "Width", "Visible", "Element Type", "Position"})
        EXPECT_EQ(read[row], 1) << row;
    const std::pair<const char*, QString> tips[] = {
        {"PicOver", Path("old.png")},
        {"PicDown", Path("lost.png") + "\nThere is no such file."},
        {"TextColor", "A colour: its number, or #RRGGBB"},
        {"LeftX", ""}};
    for (const auto& [key, tip] : tips) {
        QHelpEvent event(QEvent::ToolTip, {}, {});
        QCoreApplication::sendEvent(Box(key), &event);
        EXPECT_EQ(Box(key)->toolTip(), tip) << key;
    }
    RowLabel label(panel_.get());
    label.Show(" A <b>caption</b> that is cut", false, 40);
    EXPECT_EQ(label.toolTip(), "<pre>A &lt;b&gt;caption&lt;/b&gt; that is cut</pre>");
    label.Show(" A", false, 40);
    EXPECT_EQ(label.toolTip(), "");
}

TEST_F(SheetTest, ListsShowTheirCodes) {
    element().ActionType = 55;
    Element("SearchBox").Visible = false;
    Select("Element");
    const struct {
        const char *key, *first, *last;
        int count, chosen;
    } cases[] = {{"ElementType", "Main", "Scrollbar", 7, TypeButton},
                 {"ActionType", "<nothing>", "Toggle Tempo Meter", 56, 55},
                 {"ShowElement", "Main", "Scrollbar", 7, 1}};
    for (const auto& row : cases) {
        const RowCombo& combo = *Combo(row.key);
        EXPECT_EQ(combo.itemText(0), row.first) << row.key;
        EXPECT_EQ(combo.itemText(row.count - 1), row.last) << row.key;
        EXPECT_EQ(combo.count(), row.count) << row.key;
        EXPECT_EQ(combo.ListIndex(), row.chosen) << row.key;
    }
    EXPECT_EQ(Combo("ShowElement")->itemText(5), "SearchBox (hidden)");
    EXPECT_EQ(Combo("ActionType")->itemText(38), "K/Spec Songs Favorite");
    Combo("ActionType")->showPopup();
    const QAbstractItemView* list = Combo("ActionType")->view();
    EXPECT_EQ(list->viewport()->height() / list->sizeHintForRow(0), 24);
    Combo("ActionType")->hidePopup();
    element().ActionType = 56;
    Select("Element");
    EXPECT_EQ(Combo("ActionType")->ListIndex(), -1);
}

TEST_F(SheetTest, TabWalksTheValuesAndTheFocusStaysInItsRow) {
    Select("lbl_Kiosk");
    Box("LA_Font.Font")->setFocus();
    for (const char* key :
         {"LA_TextColor.Value", "LA_Shadow.Value", "LA_ShadowColor.Value", "LA_Font.Font"}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QWidget* wanted = Check(key) ? static_cast<QWidget*>(Check(key)) : Box(key);
        EXPECT_EQ(QApplication::focusWidget(), wanted) << key;
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    Box("LA_ShadowColor.Value")->setCursorPosition(1);
    panel_->ShowProperties();
    ASSERT_EQ(QApplication::focusWidget(), Box("LA_ShadowColor.Value"));
    EXPECT_EQ(Box("LA_ShadowColor.Value")->cursorPosition(), 1);
    EXPECT_FALSE(timer().isActive()) << "filling rows is no edit";
}

TEST_F(SheetTest, HeightFollowsTheRowsAndWidthIsKept) {
    Select("lbl_Kiosk");
    EXPECT_EQ(panel_->height(), 5 * RowPitch - 1);
    panel_->resize(400, panel_->height());
    EXPECT_EQ(Box("LA_TextColor.Value")->width(), 300);
    const int most = panel_->screen()->availableGeometry().height();
    for (int i = 0; i < most / RowPitch; ++i)
        objSkin->dbSkinPrefs->Add("LA_" + std::to_string(i), "More", "", KindText);
    panel_->ShowProperties();
    EXPECT_LT(panel_->height(), most);
    EXPECT_LE(panel_->y() + panel_->height(), most);
    Box("LA_Font.Font")->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);  // the last row, far below
    EXPECT_FALSE(QApplication::focusWidget()->visibleRegion().isEmpty());
    panel_->close();
    EXPECT_EQ(settings::PropertiesTop.Read(), 4035) << "the place of a lower sheet is kept";
    EXPECT_EQ(settings::PropertiesWidth.Read(), 408 * TwipsPerPixel);
}

}  // namespace
}  // namespace ornavo::testing
