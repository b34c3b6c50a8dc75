// SPDX-License-Identifier: MIT
// An empty folder of a test's own, removed with all that is in it.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <random>
#include <string>
#include <string_view>

namespace ornavo {

class TemporaryFolder {
public:
    TemporaryFolder() {
        std::random_device dice;
        do place_ = std::filesystem::temp_directory_path() / ("ornavo-test-" + std::to_string(dice()));
        while (!std::filesystem::create_directory(place_));
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(place_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::filesystem::path operator/(std::string_view name) const { return place_ / name; }
    const std::filesystem::path& place() const { return place_; }

    /// Makes the folders of the name too.
    std::filesystem::path Write(std::string_view name, std::string_view bytes) const {
        const std::filesystem::path path = place_ / name;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << bytes;
        return path;
    }
    static std::string Read(const std::filesystem::path& path) {
        std::ifstream file(path, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), {});
    }
    /// Every file below, or below a folder in it, with its bytes.
    std::map<std::string, std::string> Files(std::string_view below = "") const {
        std::map<std::string, std::string> files;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(place_ / below))
            if (entry.is_regular_file())
                files[entry.path().lexically_relative(place_ / below).generic_string()] = Read(entry.path());
        return files;
    }
    std::size_t Entries() const {
        return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(place_), {}));
    }

private:
    std::filesystem::path place_;
};

}  // namespace ornavo
