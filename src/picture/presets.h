// SPDX-License-Identifier: MIT
// Pairs of hue and saturation with a name. They belong to the user and not to a skin, so they live in the
// settings.
#pragma once

#include <string>
#include <vector>

namespace ornavo {

/// As the settings have it: what stands there is kept, number or not.
struct Preset {
    std::string name, hue, saturation;
    bool operator==(const Preset&) const = default;
};

inline constexpr int MostPresets = 999;  // a greater count in the settings is a broken one

std::vector<Preset> ReadPresets();
/// At the end; a name may occur twice. Failure 513 if there are MostPresets already.
void AddPreset(const std::string& name, int hue, int saturation);
/// The others move up. Nothing if there is none of that index, which counts from 0.
void DeletePreset(int index);

}  // namespace ornavo
