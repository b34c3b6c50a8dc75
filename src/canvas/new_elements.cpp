// SPDX-License-Identifier: MIT
#include "canvas/new_elements.h"

#include <array>

#include "base/failure.h"
#include "document/codes.h"
#include "document/current_skin.h"
#include "document/layout_edits.h"
#include "editor/selection.h"
#include "render/layout_host.h"

namespace ornavo {
namespace {

struct NewElement {
    int left, top, width, height;
    bool lockLeft, lockTop, lockRight;
    Colour background;
    int scrollSpeed;
};
constexpr std::array<NewElement, 4> Defaults = {{
    {25, 25, 50, 50, true, true, false, 0, 0},            // button
    {25, 25, 50, 50, true, true, false, 0, 0},            // picture
    {75, 25, 50, 50, false, true, true, 0, 0},            // volume, at the right edge
    {100, 20, 400, 50, true, true, true, ButtonFace, 1},  // info
}};

void SetDefaults(dbLayoutElement& element) {
    const NewElement& row = Defaults[static_cast<std::size_t>(element.ElementType - TypeButton)];
    element.ElementName = element.Key;
    element.LeftX = row.left;
    element.TopY = row.top;
    element.WidthX = row.width;
    element.HeightY = row.height;
    element.LockLeft = row.lockLeft;
    element.LockTop = row.lockTop;
    element.LockRight = row.lockRight;
    element.BackgroundColor = row.background;
    element.CapScrollSpeed = row.scrollSpeed;
}

/// Everything of the source but what tells the two apart.
void CopyFields(dbLayoutElement& clone, const dbLayoutElement& source) {
    dbLayoutElement copy = source;
    copy.Key = clone.Key;
    copy.ElementType = clone.ElementType;
    copy.ElementName = "Clone of " + source.ElementName;
    copy.Order = clone.Order;
    clone = std::move(copy);
}

/// The control that shows the element; null where none does.
template <class T>
Control* ControlIn(const Pool<T>& pool, int slot, const std::string& key) {
    return slot >= 1 && slot <= pool.Top() && pool[slot].Tag == key ? &pool[slot] : nullptr;
}

Control* ControlOf(const LayoutHost& host, const dbLayoutElement& element) {
    return element.ElementType == TypeInfo
               ? ControlIn<PictureBox>(host.pInfo, element.ControlIndex, element.Key)
               : ControlIn<TileButton>(host.Element, element.ControlIndex, element.Key);
}

/// Composes the layout with the new element and shows it as the selection.
void SelectNewElement(CanvasParts& parts, const dbLayoutElement& element) {
    objSkin->Dirty = true;
    parts.canvas.UpdateCurrentLayout();
    parts.canvas.PlaceAnchors(ControlOf(parts.host, element), false);
    parts.windows.properties().UnloadProperties();
    parts.windows.properties().Open();
}

bool LayoutIsOpen() {
    return objSkin && objCurrentLayout && !objCurrentLayout->Key.empty();
}

}  // namespace

void AddElement(CanvasParts& parts, int elementType) {
    if (!LayoutIsOpen()) return;
    const dbLayoutElementRef element =
        AddNumberedElement(*objCurrentLayout, GetTopOrder(*objCurrentLayout), elementType);
    if (!element) return;
    SetDefaults(*element);
    SelectNewElement(parts, *element);
}

void CloneElement(CanvasParts& parts) {
    if (!LayoutIsOpen() || !SelControl) return;
    const dbLayoutElementRef source = objCurrentLayout->dbLayoutElements->Find(SelControl->Tag);
    if (!source) return;
    const dbLayoutElementRef clone =
        AddNumberedElement(*objCurrentLayout, GetTopOrder(*objCurrentLayout), source->ElementType);
    if (!clone) return;
    CopyFields(*clone, *source);
    SelectNewElement(parts, *clone);
}

}  // namespace ornavo
