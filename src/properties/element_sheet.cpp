// SPDX-License-Identifier: MIT
#include "properties/element_sheet.h"

#include <array>
#include <span>

#include "document/fields.h"

namespace ornavo {
namespace {

/// What the condition of a line can test.
struct Subject {
    ElementKind kind;
    const dbLayoutElement& element;
};

bool Always(const Subject&) {
    return true;
}
bool IsButton(const Subject& s) {
    return s.kind == ElementKind::Button && s.element.ElementType == TypeButton;
}
bool HasAmount(const Subject& s) {
    const int action = s.element.ActionType;
    return IsButton(s) && (action == ActionForward || action == ActionBackwards || action == ActionVolumeUp ||
                           action == ActionVolumeDown);
}
bool RunsScript(const Subject& s) {
    return IsButton(s) && s.element.ActionType == ActionScript;
}
bool IsPicture(const Subject& s) {
    return s.element.ElementType == TypePicture;
}
bool IsUserLabel(const Subject& s) {
    return s.element.InfoType == InfoUserLabel;
}
bool IsSongProperty(const Subject& s) {
    return s.element.InfoType == InfoSongProperty;
}
bool IsVolume(const Subject& s) {
    return s.element.InfoType == InfoVolume;
}
bool IsText(const Subject& s) {
    return !IsVolume(s);
}

/// A line of a sheet, and the condition under which it is shown.
struct Line {
    std::string_view caption;
    PropertyKindCode kind;
    std::string_view key;
    bool (*shown)(const Subject&) = Always;
};

// clang-format off
constexpr Line Common[] = {
    {"Element List", KindElementList, "ShowElement"},
    {"Element", KindHeading, ""},
    {"Name", KindText, "ElementName"},
    {"Element Type", KindElementType, "ElementType"},
    {"Action Type", KindActionType, "ActionType", IsButton},
    {"Value", KindValue, "Value", HasAmount},
    {"db-Script Name", KindValue, "dbScript", RunsScript},
    {"Position", KindHeading, ""},
    {"X", KindNumber, "LeftX"},
    {"Y", KindNumber, "TopY"},
    {"Width", KindNumber, "WidthX"},
    {"Height", KindNumber, "HeightY"},
    {"Lock Left", KindBoolean, "LockLeft"},
    {"Lock Right", KindBoolean, "LockRight"},
    {"Stretch Width", KindBoolean, "StretchWidth"},
    {"Lock Top", KindBoolean, "LockTop"},
    {"Lock Bottom", KindBoolean, "LockBottom"},
    {"Stretch Height", KindBoolean, "StretchHeight"},
};
constexpr Line OfElement[] = {
    {"Caption", KindHeading, ""},
    {"Caption", KindText, "Caption"},
    {"Caption X Margin", KindNumber, "CaptionX"},
    {"Caption Y Margin", KindNumber, "CaptionY"},
    {"Font", KindFont, "Font"},
    {"Text Color", KindColour, "TextColor"},
    {"Show Shadow", KindBoolean, "ShowShadow"},
    {"Shadow Distance", KindNumber, "ShadowDistance"},
    {"Shadow Color", KindColour, "ShadowColor"},
    {"Appearance", KindHeading, ""},
    {"Visible", KindBoolean, "Visible"},
    {"Show Border", KindBoolean, "ShowBorder"},
    {"Border Color", KindColour, "BorderColor"},
    {"Normal", KindPicture, "PicNormal"},
    {"On", KindPicture, "PicOn"},
    {"Over", KindPicture, "PicOver"},
    {"Down", KindPicture, "PicDown"},
    {"Disabled ", KindPicture, "PicDisabled"},
    {"Show Smooth", KindBoolean, "ShowSmooth"},
    {"Use Transparency", KindBoolean, "UseTransparency"},
    {"Use Top-Left Transp.", KindBoolean, "UseTopLeftTransparency"},
    {"Transparent Color", KindColour, "TransparentColor"},
    {"Rotation", KindNumber, "Rotation"},
    {"Misc", KindHeading, "", IsPicture},
    {"db-Script Name", KindValue, "dbScript", IsPicture},
    {"Is Jukebox Drager", KindBoolean, "Dragger", IsPicture},
    {"Is Jukebox Resizer", KindBoolean, "Resizer", IsPicture},
    {"Is Search Graphic", KindBoolean, "IsSearch", IsPicture},
};
constexpr Line OfPanel[] = {
    {"Margins", KindHeading, ""},
    {"Left", KindNumber, "MarginLeft"},
    {"Right", KindNumber, "MarginRight"},
    {"Top", KindNumber, "MarginTop"},
    {"Bottom", KindNumber, "MarginBottom"},
    {"Appearance", KindHeading, ""},
    {"Background Picture", KindPicture, "PicNormal"},
    {"Background Color", KindColour, "BackgroundColor"},
    {"Stretch Background", KindBoolean, "StretchBackground"},
};
constexpr Line OfSearchBox[] = {
    {"Appearance", KindHeading, ""},
    {"Visible", KindBoolean, "Visible"},
    {"Font", KindFont, "Font"},
    {"Text Color", KindColour, "TextColor"},
    {"Background Color", KindColour, "BackgroundColor"},
    {"Show Border", KindBoolean, "ShowBorder"},
};
constexpr Line OfScrollbar[] = {
    {"Appearance", KindHeading, ""},
    {"Visible", KindBoolean, "Visible"},
    {"Caption Y Margin", KindNumber, "CaptionY"},
    {"Font", KindFont, "Font"},
    {"Text Color", KindColour, "TextColor"},
    {"Show Shadow", KindBoolean, "ShowShadow"},
    {"Shadow Distance", KindNumber, "ShadowDistance"},
    {"Shadow Color", KindColour, "ShadowColor"},
    {"Show Border", KindBoolean, "ShowBorder"},
    {"Border Color", KindColour, "BorderColor"},
    {"Pictures", KindHeading, ""},
    {"Scroll Frame", KindPicture, "PicNormal"},
    {"Scroll Bar", KindPicture, "PicOn"},
    {"Over", KindPicture, "PicOver"},
    {"Down", KindPicture, "PicDown"},
    {"Show Smooth", KindBoolean, "ShowSmooth"},
    {"Use Transparency", KindBoolean, "UseTransparency"},
    {"Use Top-Left Transp.", KindBoolean, "UseTopLeftTransparency"},
    {"Transparent Color", KindColour, "TransparentColor"},
};
constexpr Line OfInfo[] = {
    {"Info Settings", KindHeading, ""},
    {"Info Type", KindInfoType, "InfoType"},
    {"Caption", KindText, "InfoField", IsUserLabel},
    {"qry_Song Field", KindText, "InfoField", IsSongProperty},
    {"db-Script Name", KindValue, "dbScript"},
    {"Volume Picture 0%", KindPicture, "PicNormal", IsVolume},
    {"Volume Picture 100%", KindPicture, "PicOn", IsVolume},
    {"Vertical", KindBoolean, "Value", IsVolume},
    {"Can change Volume", KindBoolean, "VolumeChangeable", IsVolume},
    {"Is Song Seeker", KindBoolean, "Seeker", IsText},
    {"Seeker Color", KindColour, "SeekerColor", IsText},
    {"Offset Left", KindNumber, "SeekLeftOffset", IsText},
    {"Offset Right", KindNumber, "SeekRightOffset", IsText},
    {"Offset Top", KindNumber, "SeekTopOffset", IsText},
    {"Offset Bottom", KindNumber, "SeekBottomOffset", IsText},
    {"Appearance", KindHeading, ""},
    {"Visible", KindBoolean, "Visible"},
    {"Background Picture", KindPicture, "PicNormal", IsText},
    {"Background Color", KindColour, "BackgroundColor", IsText},
    {"Font", KindFont, "Font", IsText},
    {"Text Color", KindColour, "TextColor", IsText},
    {"Caption Y Margin", KindNumber, "CaptionY", IsText},
    {"Scroll Speed (Pixels)", KindNumber, "CapScrollSpeed", IsText},
};
constexpr Line OfPoint[] = {
    {"X", KindNumber, "X"},
    {"Y", KindNumber, "Y"},
    {"Horizontal Align", KindHAlign, "HAlign"},
    {"Vertical Align", KindVAlign, "VAlign"},
};
// clang-format on

// In the order of ElementKind.
constexpr std::array<std::span<const Line>, 5> LinesOf = {OfElement, OfPanel, OfInfo, OfSearchBox,
                                                          OfScrollbar};

Value ValueOf(const Line& line, const dbLayoutElement& element) {
    if (line.kind == KindHeading) return 0;
    // The list of elements is not a field; it selects another element.
    if (line.kind == KindElementList) return element.Key;
    return GetField(element, line.key);
}

void Append(Sheet& sheet, std::span<const Line> lines, const Subject& subject) {
    for (const Line& line : lines)
        if (line.shown(subject))
            sheet.push_back({std::string(line.caption), line.kind, ValueOf(line, subject.element),
                             std::string(line.key)});
}

}  // namespace

Sheet ElementSheet(ElementKind kind, const dbLayoutElement& element) {
    Sheet sheet;
    Append(sheet, Common, {kind, element});
    Append(sheet, RowOf(LinesOf, kind), {kind, element});
    return sheet;
}

Sheet PointSheet(const dbPoint& point) {
    Sheet sheet = {{"Position (" + std::to_string(point.Order) + ")", KindHeading, 0, ""}};
    for (const Line& line : OfPoint)
        sheet.push_back(
            {std::string(line.caption), line.kind, GetField(point, line.key), std::string(line.key)});
    return sheet;
}

}  // namespace ornavo
