// SPDX-License-Identifier: MIT
#include "document/dblayouts.h"

#include <utility>

#include "document/codes.h"

namespace ornavo {

namespace {

constexpr std::string_view AdminKey = "Admin-Mode";

/// An element that every new layout has; the numbers are pixels of the skin.
struct StandardElement {
    std::string_view key;
    std::int32_t elementType;
    std::string_view name;
    std::int32_t left, top, width, height;
    Colour background;
    bool lockLeft, lockTop, lockRight, lockBottom;
    bool inAdminMode;
};
constexpr StandardElement StandardElements[] = {
    {"Main", TypeMain, "Main", 30, 120, 740, 450, ButtonFace, true, true, true, true, true},
    {"SearchBox", TypeSearchBox, "Search Box", 330, 85, 200, 25, 0xFFFFFF, true, true, false, false, false},
    {"Scrollbar", TypeScrollbar, "Scrollbar", 70, 120, 40, 450, ButtonFace, false, true, true, true, false},
};

void AddStandardElement(dbLayout& layout, const StandardElement& row) {
    dbLayoutElements& elements = *layout.dbLayoutElements;
    const dbLayoutElementRef element = elements.Add(elements.Count() + 1, row.key, row.elementType, 0);
    element->ElementName = row.name;
    element->LeftX = row.left;
    element->TopY = row.top;
    element->WidthX = row.width;
    element->HeightY = row.height;
    element->BackgroundColor = row.background;
    element->LockLeft = row.lockLeft;
    element->LockTop = row.lockTop;
    element->LockRight = row.lockRight;
    element->LockBottom = row.lockBottom;
    element->Visible = row.inAdminMode || layout.Key != AdminKey;
}

}  // namespace

void dbLayout::AddDummyPoints() {
    static constexpr dbPoint Corners[] = {
        {.X = 0, .Y = 0, .VAlign = AlignStart, .HAlign = AlignStart, .Order = 1},
        {.X = 0, .Y = 1, .VAlign = AlignEnd, .HAlign = AlignStart, .Order = 2},
        {.X = 1, .Y = 1, .VAlign = AlignEnd, .HAlign = AlignEnd, .Order = 3},
        {.X = 1, .Y = 0, .VAlign = AlignStart, .HAlign = AlignEnd, .Order = 4},
    };
    for (const dbPoint& corner : Corners) *dbPoints->Add(corner.Order) = corner;
}

dbLayoutRef dbLayouts::Add(std::string_view key, std::string_view name) {
    auto layout = std::make_shared<dbLayout>();
    layout->Key = key;
    layout->LayoutName = name;
    for (const StandardElement& row : StandardElements) AddStandardElement(*layout, row);
    AddObject(layout);
    return layout;
}

void dbLayouts::AddObject(dbLayoutRef layout) {
    const std::string_view key = layout->Key;
    Append(key, std::move(layout));
}

}  // namespace ornavo
