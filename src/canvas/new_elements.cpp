// SPDX-License-Identifier: MIT
#include "canvas/new_elements.h"

#include <array>

#include "base/failure.h"
#include "canvas/element_families.h"
#include "document/codes.h"
#include "document/current_skin.h"
#include "document/layout_edits.h"
#include "render/redraw.h"

namespace ornavo {
namespace {

/// The defaults of an element type: place and size in pixels, anchors and colour.
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

/// Copies all fields but those that identify the clone.
void CopyFields(dbLayoutElement& clone, const dbLayoutElement& source) {
    dbLayoutElement copy = source;
    copy.Key = clone.Key;
    copy.ElementType = clone.ElementType;
    copy.ElementName = "Clone of " + source.ElementName;
    copy.Order = clone.Order;
    clone = std::move(copy);
}

/// Composes the layout with the new element and selects it, even while elements are hidden. The canvas gets
/// the keyboard focus.
void SelectNewElement(CanvasParts& parts, dbLayoutElement& element) {
    objSkin->Dirty = true;
    parts.canvas.UpdateCurrentLayout();
    Control& control = ControlOf(element);
    parts.selection.Select(control);
    parts.canvas.SelectWithAnchors(control);
    parts.windows.properties().UnloadProperties();
    parts.windows.properties().Open();
    FocusForm(parts);
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
    const dbLayoutElementRef source = SelectedElement(parts);
    if (!LayoutIsOpen() || !source) return;
    const dbLayoutElementRef clone =
        AddNumberedElement(*objCurrentLayout, GetTopOrder(*objCurrentLayout), source->ElementType);
    if (!clone) return;
    CopyFields(*clone, *source);
    SelectNewElement(parts, *clone);
}

}  // namespace ornavo
