// SPDX-License-Identifier: MIT
// A folder of its own for each test, skins and pictures in it.
#pragma once

#include <gtest/gtest.h>

#include "base/files.h"
#include "base/numbers.h"
#include "document/current_skin.h"
#include "support/failure_number.h"
#include "support/step_layer.h"
#include "support/temporary_folder.h"

namespace ornavo {

namespace fs = std::filesystem;

class SkinTest : public testing::Test {
protected:
    SkinTest() { objSkin = NewSkin("Blue"); }
    ~SkinTest() override {
        UseNumberSigns({});
        objSkin = std::make_shared<dbSkin>();
    }
    fs::path Put(std::string_view name, std::string_view bytes) const { return scratch.Write(name, bytes); }
    std::string BytesOf(std::string_view name) const { return scratch.Read(folder / name); }
    /// Without the catalogue, so that a file has only what a test puts there.
    dbSkinRef NewSkin(const std::string& name) const {
        auto skin = std::make_shared<dbSkin>();
        skin->dbSkinPrefs = std::make_shared<dbSkinPrefs>();
        skin->SetBasePath(folder.string());
        skin->SkinName = name;
        return skin;
    }
    dbSkinRef Load(const std::string& name) const {
        objSkin = NewSkin(name);
        objSkin->LoadSkin();
        return objSkin;
    }
    dbSkinRef LoadBytes(const std::string& bytes, const std::string& name = "Blue") const {
        Put(name + "/SkinSettings.xml", bytes);
        return Load(name);
    }
    static dbLayoutElement& Lowest() { return *objSkin->dbLayouts->Item(1)->dbLayoutElements->Item(1); }

    const TemporaryFolder scratch;
    const fs::path folder = scratch.place();
};

}  // namespace ornavo
