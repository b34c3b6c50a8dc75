// SPDX-License-Identifier: MIT
// The source tree as a house: which file includes which, and what is wrong with that.
#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace ornavo {

/// The rooms that each room may include, besides itself.
using Plan = std::map<std::string, std::set<std::string>>;

class House {
public:
    /// Reads all .h and .cpp files of the rooms below a folder.
    explicit House(const std::filesystem::path& source);

    std::size_t Files() const { return lines_.size(); }
    /// Includes that the plan does not allow, of files that are not there, and rooms that it does not know.
    std::vector<std::string> WaysUp(const Plan& plan) const;
    /// The files of one ring, the first one again at the end; empty if there is none.
    std::vector<std::string> Ring() const;
    /// Files from the given rooms that include a header of the window library.
    std::vector<std::string> WindowHeadersIn(const std::set<std::string>& rooms) const;
    std::vector<std::string> LongerThan(std::size_t lines) const;

private:
    void ReadFile(const std::string& name, const std::filesystem::path& path);

    std::map<std::string, std::size_t> lines_;                  // by file, "room/file.h"
    std::map<std::string, std::vector<std::string>> includes_;  // of the house's own files
    std::set<std::string> windowHeaders_;                       // files that include <Q...>
};

}  // namespace ornavo
