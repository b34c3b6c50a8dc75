// SPDX-License-Identifier: MIT
// One element of a layout, and the list of a layout's elements.
#pragma once

#include <cstdint>
#include <string>

#include "base/colour.h"
#include "base/font.h"
#include "base/keyed_collection.h"

namespace ornavo {

/// An element of any type; what a field means depends on ElementType. The names are those of the file's tags
/// (document/fields). Positions and sizes are pixels of the skin.
struct dbLayoutElement {
    std::string Key;
    std::int32_t ElementType = 0;
    std::string ElementName;
    std::int32_t TopY = 0, LeftX = 0, WidthX = 0, HeightY = 0;
    bool LockLeft = false, LockTop = false, LockRight = false, LockBottom = false;
    std::string dbScript;
    std::string PicNormal, PicOn, PicOver, PicDown;
    bool ShowSmooth = false;
    double Rotation = 0;  // degrees, clockwise
    double Value = 0;
    bool UseTransparency = false;
    std::int32_t Order = 0;  // from 1; the lowest is at the bottom
    std::int32_t ActionType = 0;
    bool UseTopLeftTransparency = false;
    Colour TransparentColor = 0;
    bool Resizer = false, Dragger = false;
    std::int32_t ControlIndex = 0;  // index of its control in the pool; not saved
    Colour BackgroundColor = 0;
    bool StretchBackground = false, StretchHeight = false, StretchWidth = false;
    bool Visible = true;
    FontRef Font;  // null until a font is set
    std::int32_t CaptionY = 0;
    std::int32_t InfoType = 0;
    bool Seeker = false;
    std::string InfoField;
    Colour TextColor = 0;
    std::string Caption;
    std::int32_t ScrollMax = 0, ScrollPos = 0, ScrollDir = 0, ScrollWait = 0;  // not saved
    std::int32_t CapScrollSpeed = 0;
    Colour SeekerColor = 0;
    std::int32_t SpareLong1 = 0;  // not saved
    std::int32_t SeekTopOffset = 0, SeekBottomOffset = 0, SeekLeftOffset = 0, SeekRightOffset = 0;
    std::int32_t SpareLong2 = 0;  // not saved
    Colour BorderColor = 0;
    bool ShowBorder = false;
    bool IsSearch = false;
    bool VolumeChangeable = false;
    std::string PicDisabled;
    std::int32_t CaptionX = 0;
    bool ShowShadow = false;
    Colour ShadowColor = 0;
    std::int32_t ShadowDistance = 0;
    std::int32_t MarginTop = 0, MarginLeft = 0, MarginBottom = 0, MarginRight = 0;
};
using dbLayoutElementRef = std::shared_ptr<dbLayoutElement>;

/// The elements of a layout, from the lowest to the topmost.
class dbLayoutElements : public KeyedCollection<dbLayoutElement> {
public:
    /// Adds a visible element at the end. Its transparent colour is the button face. Failure 457 if the key
    /// exists.
    dbLayoutElementRef Add(std::int32_t order, std::string_view key, std::int32_t elementType,
                           std::int32_t actionType);
    void AddObject(dbLayoutElementRef element);
    void AddObjectToFirst(dbLayoutElementRef element);  // at the bottom
};

}  // namespace ornavo
