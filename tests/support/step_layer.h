// SPDX-License-Identifier: MIT
// The real disk, but what comes before each step towards it is a test's: it may fail, or end the process.
#pragma once

#include <filesystem>
#include <functional>
#include <limits>
#include <string_view>

#include "base/failure.h"
#include "base/file_layer.h"

namespace ornavo {

/// Counts the steps towards the disk, as long as it lives.
class StepLayer : public FileLayer {
public:
    explicit StepLayer(std::function<void(int step)> before = [](int) {}) : before_(std::move(before)) {
        UseFileLayer(this);
    }
    ~StepLayer() override { UseFileLayer(nullptr); }
    int steps = 0;
    int made = 0;               // files
    int asked = 0, listed = 0;  // questions, which are no steps

    int Create(const std::filesystem::path& path) override { return ++made, Step(), FileLayer::Create(path); }
    void Write(int file, std::string_view bytes) override {
        // Half of it is there when the step goes wrong.
        FileLayer::Write(file, bytes.substr(0, bytes.size() / 2));
        Step();
        FileLayer::Write(file, bytes.substr(bytes.size() / 2));
    }
    void Flush(int) override { Step(); }  // a test's file need not last
    void Close(int file) override { FileLayer::Close(file), Step(); }
    void Rename(const std::filesystem::path& from, const std::filesystem::path& to) override {
        Step(), FileLayer::Rename(from, to);
    }
    void Remove(const std::filesystem::path& path) override { Step(), FileLayer::Remove(path); }
    void MakeFolder(const std::filesystem::path& path) override { Step(), FileLayer::MakeFolder(path); }
    void FlushFolder(const std::filesystem::path&) override { Step(); }
    int Open(const std::filesystem::path& path) override { return Step(), FileLayer::Open(path); }
    FileState State(const std::filesystem::path& path) override { return ++asked, FileLayer::State(path); }
    std::vector<FolderEntry> List(const std::filesystem::path& folder) override {
        return ++listed, FileLayer::List(folder);
    }
    std::size_t ReadSome(int file, char* bytes, std::size_t size) override {
        return Step(), FileLayer::ReadSome(file, bytes, size);
    }

private:
    void Step() { before_(++steps); }
    std::function<void(int)> before_;
};

/// Takes nothing from one step to another, all that come after the first if the last is not given.
class FullDisk : public StepLayer {
public:
    explicit FullDisk(int first = 1, int last = std::numeric_limits<int>::max())
        : StepLayer([first, last](int step) {
              if (step >= first && step <= last) throw Failure(61, "Disk", "No space left on device");
          }) {}
};

}  // namespace ornavo
