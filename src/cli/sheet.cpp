// SPDX-License-Identifier: MIT
// Lays out the pictures of a skin's layouts at several sizes on one picture, or on one page with the
// findings.
#include <algorithm>
#include <iterator>

#include "base/paths.h"
#include "base/text.h"
#include "check/check.h"
#include "cli/open_skin.h"
#include "cli/picture_file.h"
#include "cli/sheet_page.h"
#include "document/codes.h"
#include "document/skin_copy.h"
#include "platform/form.h"
#include "playback/info_show.h"
#include "render/layout_picture.h"

namespace ornavo {
namespace {

constexpr Size UsualSizes[] = {{600, 600}, {800, 600}, {1024, 600}, {1024, 768}, {1366, 768}, {1920, 1080}};

/// A state of a button and the field of its picture.
struct ButtonState {
    const char* name;
    std::string dbLayoutElement::*picture;
};
constexpr ButtonState States[] = {{"normal", &dbLayoutElement::PicNormal},
                                  {"over", &dbLayoutElement::PicOver},
                                  {"down", &dbLayoutElement::PicDown},
                                  {"on", &dbLayoutElement::PicOn}};

std::vector<Size> SizesOf(const Arguments& arguments) {
    std::vector<Size> sizes;
    for (const std::string& text : arguments.All("sizes")) sizes.push_back(SizeOf(text, MostWindowPixels));
    if (!sizes.empty()) return sizes;
    sizes.assign(std::begin(UsualSizes), std::end(UsualSizes));
    const Size own = {objSkin->SkinWidth, objSkin->SkinHeight};
    const bool isDrawn =
        own.width >= 1 && own.height >= 1 && std::max(own.width, own.height) <= MostWindowPixels;
    if (isDrawn && !std::ranges::count(sizes, own)) sizes.push_back(own);
    return sizes;
}

std::vector<dbLayoutRef> LayoutsOf(const Arguments& arguments) {
    std::vector<dbLayoutRef> layouts;
    for (const std::string& key : arguments.All("layouts")) layouts.push_back(LayoutOf(key));
    if (layouts.empty()) layouts.assign(objSkin->dbLayouts->begin(), objSkin->dbLayouts->end());
    return layouts;
}

QImage Drawn(const dbSkin& skin, const std::string& layout, Size size) {
    LayoutPicture composed(skin, layout, size, View::Preview);
    InfoShow().Begin(composed.host(), composed.layout());
    for (const std::string& failure : composed.failures()) Tell(failure);
    return composed.Shaped(true);
}

/// The whole layout with all its buttons in this state.
QImage DrawnInState(const dbLayout& layout, const ButtonState& state, Size size) {
    const dbSkinRef copy = DeepCopy(*objSkin);
    for (const dbLayoutElementRef& element : *copy->dbLayouts->Item(layout.Key)->dbLayoutElements)
        if (element->ElementType == TypeButton && !((*element).*state.picture).empty())
            element->PicNormal = (*element).*state.picture;
    return Drawn(*copy, layout.Key, size);
}

/// Each button with a picture of another state than normal: its states side by side.
SheetSection StatesOf(const dbLayout& layout) {
    const Size size = {std::clamp(objSkin->SkinWidth, 1, MostWindowPixels),
                       std::clamp(objSkin->SkinHeight, 1, MostWindowPixels)};
    const Frame frame = {size.width, size.height, objSkin->SkinWidth, objSkin->SkinHeight};
    std::vector<QImage> wholes;
    for (const ButtonState& state : States) wholes.push_back(DrawnInState(layout, state, size));
    SheetSection section{layout.LayoutName + ": buttons", layout.Key, {}};
    for (const dbLayoutElementRef& element : *layout.dbLayoutElements) {
        if (element->ElementType != TypeButton || !element->Visible) continue;
        const Rect at = GetElementRect(*element, frame);
        for (std::size_t i = 0; i < std::size(States); ++i)
            if (i == 0 || !((*element).*States[i].picture).empty())
                section.tiles.push_back({element->Key + ", " + States[i].name,
                                         wholes[i].copy(at.left, at.top, at.width, at.height)});
    }
    return section;
}

std::vector<SheetSection> SectionsOf(const Arguments& arguments) {
    const std::vector<Size> sizes = SizesOf(arguments);
    std::vector<SheetSection> sections;
    for (const dbLayoutRef& layout : LayoutsOf(arguments)) {
        SheetSection section{layout->LayoutName, layout->Key, {}};
        for (const Size& size : sizes)
            section.tiles.push_back({std::to_string(size.width) + " x " + std::to_string(size.height),
                                     Drawn(*objSkin, layout->Key, size)});
        sections.push_back(std::move(section));
        if (arguments.Has("states")) sections.push_back(StatesOf(*layout));
    }
    return sections;
}

}  // namespace

int Sheet(const Arguments& arguments) {
    const std::string out = arguments.Need("out");
    const std::string kind = GetExtensionName(out);
    if (kind != "png" && kind != "html") throw UsageError("--out ends in .png or .html");
    OpenNamedSkin(arguments.operands[0]);
    const std::vector<SheetSection> sections = SectionsOf(arguments);
    if (kind == "png")
        WritePng(SheetPicture(sections), out);
    else
        WriteText(SheetPage(objSkin->SkinName, sections, CheckSkin(*objSkin)), out);
    return 0;
}

}  // namespace ornavo
