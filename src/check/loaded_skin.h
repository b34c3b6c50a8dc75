// SPDX-License-Identifier: MIT
// A skin as its file has it, with what became of each line, and what the next save would make of it.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "check/finding.h"
#include "document/load_report.h"

namespace ornavo {

/// The address of an object of the skin; null for none.
const void* AddressOf(const LoadedObject& object);

/// Reads the bytes of a skin's file twice: as they are, and as the next save would leave them. Pairs the
/// objects of both.
class LoadedSkin {
public:
    /// Reads the file in the folder of this name; Failure if it can't be read.
    LoadedSkin(std::string_view basePath, const std::string& name);
    /// The same for these bytes in place of the file's.
    LoadedSkin(std::string_view basePath, const std::string& name, std::string bytes);

    /// An object that the skin has, where it is, and its counterpart after a save, if it has one.
    struct Part {
        FindingPlace place;
        LoadedObject after;
    };

    const dbSkin& skin() const { return *skin_; }
    /// Of the file, with a separator at its end; the next save may write into another.
    const std::string& folder() const { return folder_; }
    const std::vector<LineReport>& lines() const { return lines_; }
    /// Null for an object that is no part of the skin.
    const Part* Find(const LoadedObject& object) const;
    /// The line that gives this field of the object its value, 0 if there is none.
    int LineOf(const void* object, std::string_view field) const;
    int newPreferences() const { return newPreferences_; }

private:
    void Pair(const dbSkin& after);
    void PairLayout(const dbLayout& before, const dbLayoutRef& after);
    void Enter(const void* before, FindingPlace place, LoadedObject after);

    std::string folder_;
    std::string bytes_;  // which the lines point into
    dbSkinRef skin_, after_;
    std::vector<LineReport> lines_;
    std::unordered_map<const void*, Part> parts_;
    int newPreferences_ = 0;
};

}  // namespace ornavo
