// SPDX-License-Identifier: MIT
// A folder of its own for each test, skins and pictures in it, and a file layer that can be told to fail.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <sstream>
#include <string>

#include "base/failure.h"
#include "base/files.h"
#include "base/numbers.h"
#include "document/current_skin.h"

namespace ornavo {

namespace fs = std::filesystem;

inline std::string BytesOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

inline void Put(const fs::path& path, const std::string& bytes) {
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
}

inline std::string Fixture(const std::string& name) {
    return BytesOf(fs::path(ORNAVO_SOURCE_DIR "/tests/document/fixtures") / name);
}

/// Every file below the folder with its bytes.
inline std::map<std::string, std::string> Snapshot(const fs::path& folder) {
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        if (entry.is_regular_file()) files[fs::relative(entry.path(), folder)] = BytesOf(entry.path());
    return files;
}

class SkinTest : public testing::Test {
protected:
    SkinTest() {
        std::string name = fs::temp_directory_path() / "ornavo-XXXXXX";
        folder = mkdtemp(name.data());
        objSkin = NewSkin("Blue");
    }
    ~SkinTest() override {
        UseFileLayer(nullptr);
        UseNumberSigns({});
        objSkin = std::make_shared<dbSkin>();
        fs::remove_all(folder);
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
    fs::path folder;
};

/// Counts the steps towards the disk and lets one of them go wrong.
class StepLayer : public FileLayer {
public:
    std::function<void(int step)> before = [](int) {};
    int steps = 0;

    int Create(const fs::path& path) override { return Step(), FileLayer::Create(path); }
    void Write(int file, std::string_view bytes) override {
        // Half of it is there when the step goes wrong.
        FileLayer::Write(file, bytes.substr(0, bytes.size() / 2));
        Step();
        FileLayer::Write(file, bytes.substr(bytes.size() / 2));
    }
    void Flush(int file) override { Step(), FileLayer::Flush(file); }
    void Close(int file) override { FileLayer::Close(file), Step(); }
    void Rename(const fs::path& from, const fs::path& to) override { Step(), FileLayer::Rename(from, to); }
    void Remove(const fs::path& path) override { Step(), FileLayer::Remove(path); }
    void MakeFolder(const fs::path& path) override { Step(), FileLayer::MakeFolder(path); }
    void FlushFolder(const fs::path& path) override { Step(), FileLayer::FlushFolder(path); }
    int Open(const fs::path& path) override { return Step(), FileLayer::Open(path); }
    std::size_t ReadSome(int file, char* bytes, std::size_t size) override {
        return Step(), FileLayer::ReadSome(file, bytes, size);
    }

private:
    void Step() { before(++steps); }
};

}  // namespace ornavo
