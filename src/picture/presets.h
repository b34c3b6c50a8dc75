// SPDX-License-Identifier: MIT
// Named pairs of hue and saturation. They belong to the user, so they are stored in the settings.
#pragma once

#include <string>
#include <vector>

namespace ornavo {

/// A preset as stored; hue and saturation may be any text.
struct Preset {
    std::string name, hue, saturation;
    bool operator==(const Preset&) const = default;
};

inline constexpr int MostPresets = 999;  // a greater count in the settings is limited to it

std::vector<Preset> ReadPresets();
/// Appends a preset; names need not be unique. Failure 513 if there are MostPresets already.
void AddPreset(const std::string& name, int hue, int saturation);
/// Deletes the preset with this index, from 0; does nothing if there is none.
void DeletePreset(int index);

}  // namespace ornavo
