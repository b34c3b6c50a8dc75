// SPDX-License-Identifier: MIT
#include "picture/presets.h"

#include <algorithm>

#include "base/failure.h"
#include "base/numbers.h"
#include "editor/settings_keys.h"

namespace ornavo {
namespace {

constexpr const char* Section = "Picture-Editor";

/// A field of a preset and its setting.
struct Entry {
    const char* key;  // followed by the preset's number, from 1
    const char* standard;
    std::string Preset::*text;
};
constexpr Entry Entries[] = {{"PresetName", "<empty>", &Preset::name},
                             {"HUE", "100", &Preset::hue},
                             {"Sat", "100", &Preset::saturation}};

std::string KeyOf(const Entry& entry, int number) {
    return entry.key + std::to_string(number);
}

int CountPresets() {
    return std::clamp(settings::PresetCount.ReadOrStandard(), 0, MostPresets);
}

void Write(const Preset& preset, int number) {
    for (const Entry& entry : Entries) SaveSetting(Section, KeyOf(entry, number), preset.*entry.text);
}

}  // namespace

std::vector<Preset> ReadPresets() {
    std::vector<Preset> presets(static_cast<std::size_t>(CountPresets()));
    int number = 0;
    for (Preset& preset : presets) {
        ++number;
        for (const Entry& entry : Entries)
            preset.*entry.text = GetSetting(Section, KeyOf(entry, number), entry.standard);
    }
    return presets;
}

void AddPreset(const std::string& name, int hue, int saturation) {
    const int number = CountPresets() + 1;
    if (number > MostPresets)
        throw Failure(Failure::Own, "AddPreset",
                      "There are " + NumberText(MostPresets) + " presets already.");
    Write({name, NumberText(hue), NumberText(saturation)}, number);
    settings::PresetCount.Write(number);
}

void DeletePreset(int index) {
    std::vector<Preset> presets = ReadPresets();
    const int count = static_cast<int>(presets.size());
    if (index < 0 || index >= count) return;
    for (int number = 1; number <= count; ++number)
        for (const Entry& entry : Entries) DeleteSetting(Section, KeyOf(entry, number));
    presets.erase(presets.begin() + index);
    int number = 0;
    for (const Preset& preset : presets) Write(preset, ++number);
    settings::PresetCount.Write(number);
}

}  // namespace ornavo
