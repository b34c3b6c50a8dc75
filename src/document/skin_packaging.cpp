// SPDX-License-Identifier: MIT
#include "document/skin_packaging.h"

#include <algorithm>
#include <map>
#include <system_error>

#include "base/failure.h"
#include "base/file_layer.h"
#include "base/files.h"
#include "base/find_row.h"
#include "base/lookup.h"
#include "base/paths.h"
#include "base/text.h"
#include "document/current_skin.h"
#include "document/skin_lines.h"

namespace ornavo {

namespace fs = std::filesystem;

namespace {

/// Whether the file can store the name: each character has a byte, and there is no line break.
bool CanBeNamed(std::string_view name) {
    return FitsFile(name) && name.find_first_of("\r\n") == std::string_view::npos;
}

/// The name with each character that the file cannot store replaced, and from 2 on with the number after its
/// base.
std::string Substitute(std::string_view name, int number) {
    std::string plain = FromFileBytes(ToFileBytes(name));
    for (const std::string_view sign : {"?", "\r", "\n"}) plain = ReplaceAll(std::move(plain), sign, "_");
    if (number == 1) return plain;
    const std::size_t point = plain.rfind('.');
    plain.insert(point == std::string::npos ? plain.size() : point,
                 std::string("-").append(std::to_string(number)));
    return plain;
}

bool SameBytes(const fs::path& one, const fs::path& two) {
    std::error_code error;
    if (fs::file_size(one, error) != fs::file_size(two, error) || error) return false;
    bool same = false;
    Attempt([&] { same = fileLayer().Read(one) == fileLayer().Read(two); });
    return same;
}

/// Whether something has this path, even a broken link.
bool IsTaken(const fs::path& path) {
    std::error_code ignored;
    return fs::exists(fs::symlink_status(path, ignored));
}

bool SameFile(const fs::path& one, const fs::path& two) {
    return one == two || SameBytes(one, two);
}

/// Plans the references in the order of the file, and knows which files the earlier steps will have made.
class Planner {
public:
    Planner(const dbSkin& skin, bool keepExisting)
        : skin_(skin), current_(*objSkin), keepExisting_(keepExisting) {
        skin_.SkinName = StorableSkinName(skin);
        if (&skin == objSkin.get()) current_.SkinName = skin_.SkinName;
        folder_ = skin_.SkinFolder();
    }
    PictureStep Plan(const std::string& given);
    /// What a finished plan loses of this reference: the picture is not found, or another one replaces it. ""
    /// if nothing.
    std::string Loss(const PictureStep& step) const;

private:
    /// A file that an earlier step makes, and its source.
    struct Made {
        fs::path target, source;
    };
    const Made* MadeBefore(std::string_view path) const;
    bool IsThere(const std::string& path) const { return FileExists(path) || MadeBefore(path); }
    fs::path Place(const std::string& path) const;
    std::string InOldFolder(std::string_view path) const;
    fs::path FindSource(std::string_view path) const;
    std::string StoredName(const std::string& name, const fs::path& source) const;
    /// The part of a step that is the same for equal references.
    struct Known {
        PictureStep step;
        bool isInPlace = false;
    };
    Known Resolve(const std::string& given) const;

    dbSkin skin_;     // under the name by which it will be saved
    dbSkin current_;  // a bare name is a file of its folder
    bool keepExisting_;
    std::string folder_;
    std::map<std::string, Known> known_;    // by the reference; many are equal
    std::map<std::string, Made> made_;      // by name in lower case
    std::map<fs::path, fs::path> winners_;  // the source of each file of the folder after the save
};

const Planner::Made* Planner::MadeBefore(std::string_view path) const {
    if (!path.starts_with(folder_)) return nullptr;
    const auto made = made_.find(LowerText(path.substr(folder_.size())));
    return made == made_.end() ? nullptr : &made->second;
}

fs::path Planner::Place(const std::string& path) const {
    const Made* made = FileExists(path) ? nullptr : MadeBefore(path);
    return made ? made->target : OnDisk(path);
}

/// "" for a skin that was never loaded.
std::string Planner::InOldFolder(std::string_view path) const {
    if (skin_.OldSkinName.empty()) return "";
    return WithSeparator(skin_.BasePath() + skin_.OldSkinName) + GetFileName(path);
}

/// The file the path leads to; otherwise the file of that name in the saved skin's former folder, then in the
/// folders of the current skin.
fs::path Planner::FindSource(std::string_view path) const {
    std::vector<std::string> places = PicturePlaces(path, current_);
    places.insert(places.begin() + 1, InOldFolder(path));
    for (const std::string& place : places)
        if (!place.empty() && IsThere(place)) return Place(place);
    return {};
}

/// The name under which the picture is stored: its own, or else a substitute that no other picture has. A
/// name that the file would give back as a number is not used.
std::string Planner::StoredName(const std::string& name, const fs::path& source) const {
    if (CanBeNamed(name) && ReadBack(name) == name) return name;
    for (int number = 1;; ++number) {
        std::string candidate = Substitute(name, number);
        if (ReadBack(candidate) != candidate) candidate.insert(0, "_");
        const fs::path target = OnDisk(folder_ + candidate);
        const Made* made = MadeBefore(folder_ + candidate);
        const bool free =
            made ? SameFile(made->source, source) : !IsTaken(target) || SameBytes(target, source);
        if (free) return candidate;
    }
}

/// Plans everything but whether the picture is copied.
Planner::Known Planner::Resolve(const std::string& given) const {
    Known known;
    PictureStep& step = known.step;
    step.given = given;
    step.isBlank = TrimBlanks(given).empty();
    if (!step.isBlank) step.source = FindSource(given);
    if (step.source.empty()) return known;
    step.stored = StoredName(GetFileName(given), step.source);
    step.isRefused = EqualText(step.stored, SettingsFileName);
    if (step.isRefused) return known;
    step.target = Place(folder_ + step.stored);
    std::error_code ignored;
    known.isInPlace = step.source == step.target || fs::equivalent(step.source, step.target, ignored);
    return known;
}

PictureStep Planner::Plan(const std::string& given) {
    auto known = known_.find(given);
    if (known == known_.end()) known = known_.emplace(given, Resolve(given)).first;
    PictureStep step = known->second.step;
    if (step.source.empty()) known_.erase(known);  // a later step may make the file
    if (step.target.empty()) return step;
    step.isCopied = !known->second.isInPlace && !(keepExisting_ && IsThere(folder_ + step.stored));
    step.isMade = !step.isCopied && MadeBefore(folder_ + step.stored);
    if (step.isCopied) {
        made_.insert_or_assign(LowerText(step.stored), Made{step.target, step.source});
        winners_.insert_or_assign(step.target, step.source);
    } else {
        winners_.try_emplace(step.target, step.target);
    }
    return step;
}

std::string Planner::Loss(const PictureStep& step) const {
    if (!step.isBlank && step.stored.empty()) return step.given + " is not there";
    const auto winner = winners_.find(step.target);
    if (step.target.empty() || winner == winners_.end()) return "";
    // A bare name means the file in the folder that the skin was read from.
    const std::string old = ContainsSeparator(step.given) ? "" : InOldFolder(step.given);
    const fs::path meant = FileExists(old) ? OnDisk(old) : step.source;
    if (!FileExists(ToText(meant)) || SameFile(meant, winner->second)) return "";
    return ToText(meant) + " gives way to " + ToText(winner->second);
}

/// Collects the losses, with one line for all places that lose the same picture.
class LossList {
public:
    void Add(const std::string& what, const std::string& where) {
        const auto [place, isNew] = places_.try_emplace(what, lines_.size());
        if (isNew) lines_.push_back({what, where, 0});
        ++lines_[place->second].times;
    }
    std::vector<std::string> Lines() const {
        std::vector<std::string> texts;
        for (const Line& line : lines_) {
            const std::string more =
                line.times > 1 ? ", and " + std::to_string(line.times - 1) + " more" : std::string();
            texts.push_back(line.what + " (" + line.where + more + ")");
        }
        return texts;
    }

private:
    /// A loss, the first place that has it and the number of places.
    struct Line {
        std::string what, where;
        int times;
    };
    std::vector<Line> lines_;
    std::map<std::string, std::size_t> places_;
};

/// Copies the picture. Returns "", or the reason why it failed.
std::string ReasonAgainst(const PictureStep& step) {
    try {
        CopyFileWhole(step.source, step.target);
        return "";
    } catch (const Failure& failure) {
        return failure.description();
    }
}

}  // namespace

std::string StorableSkinName(const dbSkin& skin) {
    if (CanBeNamed(skin.SkinName)) return skin.SkinName;
    for (int number = 1;; ++number) {
        std::string candidate = Substitute(skin.SkinName, number);
        const std::string folder = WithSeparator(skin.BasePath() + candidate);
        if (!FileExists(folder + std::string(SettingsFileName))) return candidate;
    }
}

SavePlan PlanSave(const dbSkin& skin, bool keepExisting) {
    const LookupScope names;
    SavePlan plan;
    Planner planner(skin, keepExisting);
    std::vector<std::string> holders;
    VisitPictures(skin, [&](const std::string& picture, const auto& holder, const auto&) {
        plan.pictures.push_back(planner.Plan(picture));
        holders.push_back(holder());
    });
    LossList losses;
    std::map<std::string, std::string> known;  // the loss of each reference
    for (std::size_t i = 0; i < holders.size(); ++i) {
        const PictureStep& step = plan.pictures[i];
        const auto [loss, isNew] = known.try_emplace(step.given);
        if (isNew) loss->second = planner.Loss(step);
        if (!loss->second.empty()) losses.Add(loss->second, holders[i]);
    }
    plan.losses = losses.Lines();
    return plan;
}

std::string CarryOut(const PictureStep& step, std::vector<std::string>& failures) {
    std::string reason;
    if (step.isRefused)
        reason = "\"" + step.given + "\" is called like the skin's settings and can't be copied";
    if (step.isCopied) reason = ReasonAgainst(step);
    const bool isThere = !step.isMade || FileExists(ToText(step.target));
    if (reason.empty()) return isThere ? step.stored : step.given;
    if (!Contains(failures, reason)) failures.push_back(reason);
    // A bare name that was found in the skin's former folder would not be found any more.
    const bool leads = ContainsSeparator(step.given) && OnDisk(step.given) == step.source;
    return leads || step.isRefused ? step.given : ToText(step.source);
}

}  // namespace ornavo
