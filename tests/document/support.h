// SPDX-License-Identifier: MIT
// A folder of its own for each test, skins and pictures in it.
#pragma once

#include <gtest/gtest.h>

#include "base/failure.h"
#include "base/files.h"
#include "base/numbers.h"
#include "document/current_skin.h"
#include "support/step_layer.h"
#include "support/temporary_folder.h"

namespace ornavo {

namespace fs = std::filesystem;

inline std::string BytesOf(const fs::path& path) {
    return TemporaryFolder::Read(path);
}

inline std::string Fixture(const std::string& name) {
    return BytesOf(fs::path(ORNAVO_SOURCE_DIR "/tests/document/fixtures") / name);
}

class SkinTest : public testing::Test {
protected:
    SkinTest() { objSkin = NewSkin("Blue"); }
    ~SkinTest() override {
        UseNumberSigns({});
        objSkin = std::make_shared<dbSkin>();
    }
    static void Put(const fs::path& path, const std::string& bytes) {
        fs::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << bytes;
    }
    /// Without the catalogue, so that a file has only what a test puts there.
    dbSkinRef NewSkin(const std::string& name) const {
        auto skin = std::make_shared<dbSkin>();
        skin->dbSkinPrefs = std::make_shared<dbSkinPrefs>();
        skin->SetBasePath(folder.string());
        skin->SkinName = name;
        return skin;
    }
    dbSkinRef LoadBytes(const std::string& bytes, const std::string& name = "Blue") {
        Put(folder / name / "SkinSettings.xml", bytes);
        objSkin = NewSkin(name);
        objSkin->LoadSkin();
        return objSkin;
    }
    const TemporaryFolder scratch;
    const fs::path folder = scratch.place();
};

}  // namespace ornavo
