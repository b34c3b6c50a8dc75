// SPDX-License-Identifier: MIT
#include "picture/presets.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "editor/settings_keys.h"
#include "support/failure_number.h"

namespace ornavo {
namespace {

class PresetsTest : public ::testing::Test {
protected:
    PresetsTest() { UseSettingsFile(folder_.filePath("settings.ini")); }
    static std::string Stored(const std::string& key) { return GetSetting("Picture-Editor", key, "-"); }
    QTemporaryDir folder_;
};

TEST_F(PresetsTest, AreAddedAndCloseUpWhenOneGoes) {
    const std::vector<Preset> added = {
        {"Sea", "170", "90"}, {"Rust = 1; \"x\"", "42", "0"}, {"Sea", "0", "255"}};
    for (const Preset& preset : added)
        AddPreset(preset.name, std::stoi(preset.hue), std::stoi(preset.saturation));
    EXPECT_EQ(ReadPresets(), added);
    for (const int index : {-1, 3}) DeletePreset(index);
    EXPECT_EQ(ReadPresets(), added);
    DeletePreset(1);
    EXPECT_EQ(ReadPresets(), (std::vector{added[0], added[2]}));
    EXPECT_EQ(Stored("PresetCount") + Stored("PresetName2") + Stored("HUE2") + Stored("Sat2"), "2Sea0255");
    EXPECT_EQ(Stored("PresetName3") + Stored("HUE3") + Stored("Sat3"), "---");
    DeletePreset(0);
    DeletePreset(0);
    EXPECT_EQ(Stored("PresetCount"), "0");
}

TEST_F(PresetsTest, WhatTheSettingsLackOrGarble) {
    SaveSetting("Picture-Editor", "PresetCount", "2");
    SaveSetting("Picture-Editor", "hue1", "much");
    const std::vector<Preset> expected = {{"<empty>", "much", "100"}, {"<empty>", "100", "100"}};
    EXPECT_EQ(ReadPresets(), expected);
    const std::pair<const char*, int> counts[] = {{"-4", 0}, {"many", 0}, {"2000000000", MostPresets}};
    for (const auto& [text, count] : counts) {
        SaveSetting("Picture-Editor", "PresetCount", text);
        EXPECT_EQ(ReadPresets().size(), count) << text;
    }
    EXPECT_EQ(FailureNumber([] { AddPreset("one more", 1, 1); }), 513);
}

}  // namespace
}  // namespace ornavo
