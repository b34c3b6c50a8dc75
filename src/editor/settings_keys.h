// SPDX-License-Identifier: MIT
// All settings with section, key and default. Rectangles are in twips.
#pragma once

#include "platform/settings.h"

namespace ornavo::settings {

inline constexpr Setting<int> OrnavoLeft = {"Ornavo", "Left", 1020};
inline constexpr Setting<int> OrnavoTop = {"Ornavo", "Top", 135};
inline constexpr Setting<int> OrnavoWidth = {"Ornavo", "Width", 12120};
inline constexpr Setting<int> OrnavoHeight = {"Ornavo", "Height", 9435};
inline constexpr Setting<int> OrnavoWindowState = {"Ornavo", "WindowState", 0};
inline constexpr Setting<int> GridX = {"Ornavo", "GridX", 10};
inline constexpr Setting<int> GridY = {"Ornavo", "GridY", 10};
inline constexpr Setting<bool> ShowLines = {"Ornavo", "ShowLines", false};
inline constexpr Setting<bool> ShowPoints = {"Ornavo", "ShowPoints", true};
inline constexpr Setting<bool> ShowShape = {"Ornavo", "ShowShape", true};
inline constexpr Setting<bool> ShapeInverted = {"Ornavo", "ShapeInverted", true};
inline constexpr Setting<bool> ShowElements = {"Ornavo", "ShowElements", true};
inline constexpr Setting<bool> ShowGrid = {"Ornavo", "ShowGrid", true};
inline constexpr Setting<bool> SnapGrid = {"Ornavo", "SnapGrid", false};

inline constexpr Setting<int> ToolboxLeft = {"Toolbox", "Left", 15};
inline constexpr Setting<int> ToolboxTop = {"Toolbox", "Top", 765};

inline constexpr Setting<int> SkinProjectLeft = {"SkinProject", "Left", 10830};
inline constexpr Setting<int> SkinProjectTop = {"SkinProject", "Top", 945};
inline constexpr Setting<int> SkinProjectHeight = {"SkinProject", "Height", 3090};

inline constexpr Setting<int> PropertiesLeft = {"Properties", "Left", 9045};
inline constexpr Setting<int> PropertiesTop = {"Properties", "Top", 4035};
inline constexpr Setting<int> PropertiesWidth = {"Properties", "Width", 4800};

/// The preview opens at the main window's position by default.
constexpr Setting<int> PreviewLeft(int standard) {
    return {"Skin-Preview", "Left", standard};
}
constexpr Setting<int> PreviewTop(int standard) {
    return {"Skin-Preview", "Top", standard};
}

inline constexpr Setting<int> NewSkinWidth = {"CreateNewSkin", "Width", 1024};  // pixels
inline constexpr Setting<int> NewSkinHeight = {"CreateNewSkin", "Height", 768};

inline constexpr Setting<int> MagnifierLeft = {"Magnifier", "Left", 30};
inline constexpr Setting<int> MagnifierTop = {"Magnifier", "Top", 6300};
inline constexpr Setting<int> MagnifierWidth = {"Magnifier", "Width", 2800};
inline constexpr Setting<int> MagnifierHeight = {"Magnifier", "Height", 2500};

inline constexpr Setting<int> PictureHue = {"Picture-Editor", "Hue", 100};
inline constexpr Setting<int> PictureSaturation = {"Picture-Editor", "Saturation", 100};
inline constexpr Setting<bool> SaveAsBMP = {"Picture-Editor", "SaveAsBMP", true};
inline constexpr Setting<int> PresetCount = {"Picture-Editor", "PresetCount", 0};

}  // namespace ornavo::settings
