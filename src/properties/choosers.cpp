// SPDX-License-Identifier: MIT
#include "properties/choosers.h"

#include <array>

#include "base/failure.h"
#include "base/paths.h"
#include "base/text.h"
#include "dialogs/ccommondialog.h"
#include "document/codes.h"
#include "document/current_skin.h"
#include "platform/asker.h"
#include "properties/live_update.h"
#include "properties/panel_parts.h"

namespace ornavo {
namespace {

constexpr const char* PictureTitle = "Open Picture";
constexpr const char* PictureFilter =
    "All Pictures|*.jpg;*.jpeg;*.bmp;*.gif;*.png|JPEG (*.jpg)|*.jpg;*.jpeg|"
    "Bitmap (*.bmp)|*.bmp|GIF (*.gif)|*.gif|PNG (*.png)|*.png";

void ChooseColour(RowText& box) {
    Colour colour = 0;
    Attempt([&] { colour = Value(box.Text()).ToLong(); });
    if (!cCommonDialog().VBChooseColor(colour)) return;
    Attempt([&] { box.SetBackColor(colour); });
    box.SetText(Value(colour).ToText());
}

/// The names of all fonts in the skin.
std::vector<std::string> FacesOfSkin() {
    std::vector<std::string> faces;
    const auto take = [&](const FontRef& font) {
        if (font) faces.push_back(font->Name);
    };
    for (const dbSkinPrefRef& pref : *objSkin->dbSkinPrefs) take(pref->Font);
    for (const dbLayoutRef& layout : *objSkin->dbLayouts)
        for (const dbLayoutElementRef& element : *layout->dbLayoutElements) take(element->Font);
    return faces;
}

void ChooseFont(PanelParts& parts, RowText& box) {
    const std::string key = box.Tag;
    FontRef font;
    Attempt([&] { font = GetRowValue(parts.BoundObject, key).ToFont(); });
    if (!font) font = std::make_shared<Font>();
    Font chosen = *font;
    if (!cCommonDialog().VBChooseFont(chosen, FacesOfSkin())) return;
    box.SetText(chosen.Name);
    *font = chosen;  // changes the font for a clone too, which shares the object
    Attempt([&] { SetRowValue(parts.BoundObject, key, font); });
    parts.tmrUpdate.start();
}

void ChoosePicture(PanelParts& parts, RowText& box) {
    std::string path, title;
    const std::string folder = parts.lastPictures.empty() ? objSkin->SkinFolder() : parts.lastPictures;
    if (!cCommonDialog().VBGetOpenFileName(path, title, {PictureFilter, folder, PictureTitle, {}})) return;
    parts.lastPictures = GetParentFolderName(path);
    box.SetText(MakeSkinRelative(path));
}

}  // namespace

void Choose(PanelParts& parts, const RowButton& button) {
    RowText& box = *button.box;
    if (button.kind == KindColour) ChooseColour(box);
    if (button.kind == KindFont) ChooseFont(parts, box);
    if (button.kind == KindPicture) ChoosePicture(parts, box);
    GiveKeyboardTo(box.window());
}

void EditPicture(PanelParts& parts, const RowButton& button) {
    RowText& box = *button.box;
    std::string path = box.Text();
    if (TrimBlanks(path).empty()) return;
    const bool edited = parts.windows.EditPicture(GetBaseName(path), path);
    GiveKeyboardTo(box.window());
    if (!edited) return;
    box.SetText(GetFileName(path));
    UpdateCurrentLayout(parts);
}

}  // namespace ornavo
