// SPDX-License-Identifier: MIT
#include "properties/rows.h"

#include <span>

#include "base/failure.h"
#include "base/paths.h"
#include "document/current_skin.h"
#include "platform/shown.h"

namespace ornavo {
namespace {

constexpr int ValueOverhang = 20;
constexpr QSize CheckSize = {12, 12};
constexpr int ComboLeft = -2, ComboLack = 16, ComboHeight = 24;  // pixels; narrower than a value by ComboLack
constexpr const char* Undefined = "<undefined>";

/// The path of the picture for its tool tip.
QString PicturePath(std::string_view name) {
    const std::filesystem::path file = FindSkinPicture(name);
    if (!file.empty()) return Shown(ToText(file));
    return name.empty() ? QString()
                        : Shown(GetSkinPicturePath(name)) + QStringLiteral("\nThere is no such file.");
}

/// The names that a list of this kind offers.
struct List {
    int kind;
    std::span<const std::string_view> names;
};
constexpr List Lists[] = {
    {KindHAlign, HAlignNames},         {KindVAlign, VAlignNames},     {KindElementType, ElementTypeNames},
    {KindActionType, ActionTypeNames}, {KindInfoType, InfoTypeNames}, {KindHorizontal, HorizontalNames},
    {KindVertical, VerticalNames},
};

/// Appends the elements of the current layout; returns the index of the one with the key, -1 if there is
/// none.
int FillElements(QStringList& items, const std::string& key) {
    int chosen = -1;
    for (const dbLayoutElementRef& element : *objCurrentLayout->dbLayoutElements) {
        if (element->Key == key) chosen = static_cast<int>(items.size());
        items += LineOf(*element);
    }
    return chosen;
}

}  // namespace

QString LineOf(const dbLayoutElement& element) {
    return Shown(element.ElementName) + QLatin1String(element.Visible ? "" : " (hidden)");
}

Rows::Rows(RowPools& pools, int scaleWidth, const PanelScale& scale)
    : pools_(pools),
      scale_(scale),
      rowPitch_(scale(RowPitch)),
      rowHeight_(rowPitch_ - 1),  // one pixel less for the line between rows
      captionWidth_(scale(CaptionWidth)),
      valueOverhang_(scale(ValueOverhang)),
      scaleWidth_(scaleWidth),
      valueWidth_(scaleWidth - captionWidth_ + valueOverhang_) {}

Rows::Maker Rows::MakerOf(std::int32_t kind) {
    switch (kind) {
        case KindBoolean:
            return &Rows::AddBoolean;
        case KindColour:
            return &Rows::AddColour;
        case KindNumber:
        case KindValue:
        case KindText:
            return &Rows::AddText;
        case KindFont:
            return &Rows::AddFont;
        case KindPicture:
            return &Rows::AddPicture;
        case KindHAlign:
        case KindVAlign:
        case KindElementType:
        case KindActionType:
        case KindElementList:
        case KindInfoType:
        case KindHorizontal:
        case KindVertical:
            return &Rows::AddList;
        default:
            return nullptr;
    }
}

void Rows::AddProperties(const SheetRow& row) {
    AddCaption(row);
    if (const Maker maker = MakerOf(row.kind)) Attempt([&] { (this->*maker)(row); });
    NextRowTop += rowPitch_;
    ++RowCount;
}

void Rows::AddCaption(const SheetRow& row) {
    const bool heading = row.kind == KindHeading;
    RowLabel& label = pools_.lbl_Prop[pools_.LoadLabel()];
    // A heading has no key, but a label needs a Tag to be in use.
    label.Tag = heading ? "Label" : row.key;
    const int width = heading ? scaleWidth_ : captionWidth_;
    label.Show(QLatin1String(heading ? " " : "  ") + Shown(row.caption), heading, width);
    label.setGeometry(0, NextRowTop, width, rowHeight_);
    label.raise();
    label.show();
}

RowText& Rows::Box(const SheetRow& row, int width) {
    RowText& box = pools_.tbx_Prop[pools_.LoadTextbox()];
    box.Tag = row.key;
    box.SetText("");
    box.setFocusPolicy(row.kind == KindBoolean ? Qt::NoFocus : Qt::StrongFocus);
    // Behind a check box it is only background.
    box.setAccessibleName(row.kind == KindBoolean ? QString() : Shown(row.caption));
    box.setGeometry(captionWidth_, NextRowTop, width, rowHeight_);
    box.show();
    if (row.kind != KindBoolean) values_.push_back({row.key, &box});
    return box;
}

void Rows::Place(RowButton& button, const SheetRow& row, RowText& box, int left) {
    button.Tag = row.key;
    button.kind = row.kind;
    button.box = &box;
    button.setAccessibleName(Shown(row.caption) + ": " + button.toolTip());
    button.move(left, NextRowTop - 1);
    button.raise();
    button.show();
}

void Rows::SelectButton(const SheetRow& row, RowText& box) {
    RowButton& button = pools_.btn_Prop[pools_.LoadButton()];
    box.button = &button;
    Place(button, row, box, scaleWidth_ - button.width());
}

void Rows::AddBoolean(const SheetRow& row) {
    RowText& ground = Box(row, valueWidth_);
    ground.SetLocked(true);
    RowCheck& check = pools_.chk_Boolean[pools_.LoadCheckBox()];
    check.Tag = row.key;
    check.setAccessibleName(Shown(row.caption));
    check.setGeometry(QRect({captionWidth_ + scale_(3), NextRowTop + scale_(1)}, scale_(CheckSize)));
    check.raise();
    check.show();
    values_.push_back({row.key, &check});
    check.SetValue(false);
    check.SetValue(row.value.ToBoolean());
}

void Rows::AddColour(const SheetRow& row) {
    RowText& box = Box(row, valueWidth_);
    SelectButton(row, box);
    box.SetText(row.value.ToText());
    box.Tip = [](std::string_view) { return QStringLiteral("A colour: its number, or #RRGGBB"); };
    box.SetBackColor(row.value.ToLong());
}

void Rows::AddText(const SheetRow& row) {
    RowText& box = Box(row, valueWidth_ - valueOverhang_);
    box.SetText(row.value.ToText());
}

void Rows::AddFont(const SheetRow& row) {
    RowText& box = Box(row, valueWidth_);
    box.SetLocked(true);
    SelectButton(row, box);
    const std::string name = row.value.Is<FontRef>()
                                 ? (row.value.As<FontRef>() ? row.value.As<FontRef>()->Name : "")
                                 : row.value.ToText();
    box.SetText(name.empty() ? Undefined : name);
}

void Rows::AddPicture(const SheetRow& row) {
    const int buttonWidth = pools_.btn_Prop[0].width();
    RowText& box = Box(row, valueWidth_ - buttonWidth);
    SelectButton(row, box);
    RowButton& edit = pools_.btn_PicEdit[pools_.LoadPicEdit()];
    Place(edit, row, box, scaleWidth_ - edit.width() - buttonWidth);
    box.SetText(row.value.ToText());
    box.Tip = PicturePath;
}

void Rows::AddList(const SheetRow& row) {
    RowFrame& frame = pools_.cboPic[pools_.LoadCombo()];
    frame.Tag = row.key;
    frame.setAccessibleName(Shown(row.caption));  // because a combo box is announced with its selected text
    frame.Move({captionWidth_, NextRowTop, valueWidth_, rowHeight_});
    RowCombo& combo = frame.cboProp;
    combo.Tag = row.key;
    combo.setAccessibleName(Shown(row.caption));
    const int height = scale_(ComboHeight);
    combo.setGeometry(scale_(ComboLeft), (rowHeight_ - height) / 2, valueWidth_ - scale_(ComboLack), height);
    frame.show();
    combo.show();
    values_.push_back({row.key, &combo});
    FillList(combo, row);
}

void Rows::FillList(RowCombo& combo, const SheetRow& row) {
    QStringList items;
    if (row.kind == KindElementList) {
        const int chosen = FillElements(items, row.value.ToText());
        combo.addItems(items);
        return combo.SetListIndex(chosen);
    }
    for (const List& list : Lists)
        if (list.kind == row.kind)
            for (const std::string_view name : list.names)
                items += QLatin1String(name.data(), static_cast<qsizetype>(name.size()));
    combo.addItems(items);
    combo.SetListIndex(-1);
    combo.SetListIndex(row.value.ToLong());
}

}  // namespace ornavo
