// SPDX-License-Identifier: MIT
#include "document/skin_packaging.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <system_error>
#include <unordered_map>
#include <utility>

#include "base/failure.h"
#include "base/file_layer.h"
#include "base/files.h"
#include "base/find_row.h"
#include "base/lookup.h"
#include "base/paths.h"
#include "base/text.h"
#include "base/text_map.h"
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

// The paths below are texts with native separators.

bool SameBytes(const std::string& one, const std::string& two) {
    const fs::path first = NativePath(one), second = NativePath(two);
    std::error_code error;
    if (fs::file_size(first, error) != fs::file_size(second, error) || error) return false;
    bool same = false;
    Attempt([&] { same = fileLayer().Read(first) == fileLayer().Read(second); });
    return same;
}

bool SameFile(const std::string& one, const std::string& two) {
    return one == two || SameBytes(one, two);
}

/// Whether both paths lead to one file.
bool IsOneFile(const std::string& one, const std::string& two) {
    std::error_code ignored;
    return one == two || fs::equivalent(NativePath(one), NativePath(two), ignored);
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
    std::string Loss(const PictureReference& picture) const;

private:
    /// A file that an earlier step makes, and its source.
    struct Made {
        std::string target, source;
    };
    /// The part of a step that is the same for equal references.
    struct Known {
        std::shared_ptr<const PictureReference> picture;
        bool isInPlace = false, isCopied = false;
        std::size_t madeBefore = 0;  // how many files were made when this was found out
    };
    const Made* MadeBefore(std::string_view path) const;
    std::string Find(const std::string& path) const;
    std::string Place(const std::string& path) const;
    std::string InOldFolder(std::string_view path) const;
    std::string FindSource(std::string_view path) const;
    std::string StoredName(const std::string& name, const std::string& source) const;
    Known Resolve(const std::string& given) const;

    dbSkin skin_;     // under the name by which it will be saved
    dbSkin current_;  // a bare name is a file of its folder
    bool keepExisting_;
    std::string folder_;
    std::unordered_map<std::string, Known> known_;          // by the reference; many are equal
    TextMap<std::string, Made> made_;                       // by name
    std::unordered_map<std::string, std::string> winners_;  // the source of each file after the save
};

const Planner::Made* Planner::MadeBefore(std::string_view path) const {
    if (made_.empty() || !path.starts_with(folder_)) return nullptr;
    const auto made = made_.find(path.substr(folder_.size()));
    return made == made_.end() ? nullptr : &made->second;
}

/// The file that the path leads to when the step is carried out; "" if there will be none.
std::string Planner::Find(const std::string& path) const {
    std::string file = FindFile(path);
    if (!file.empty()) return file;
    const Made* made = MadeBefore(path);
    return made ? made->target : "";
}

std::string Planner::Place(const std::string& path) const {
    std::string file = Find(path);
    return file.empty() ? ToText(OnDisk(path)) : file;
}

/// "" for a skin that was never loaded.
std::string Planner::InOldFolder(std::string_view path) const {
    if (skin_.OldSkinName.empty()) return "";
    return WithSeparator(skin_.BasePath() + skin_.OldSkinName) + GetFileName(path);
}

/// The file the path leads to; otherwise the file of that name in the saved skin's former folder, then in the
/// folders of the current skin.
std::string Planner::FindSource(std::string_view path) const {
    std::vector<std::string> places = PicturePlaces(path, current_);
    places.insert(places.begin() + 1, InOldFolder(path));
    for (auto place = places.begin(); place != places.end(); ++place) {
        if (place->empty() || std::find(places.begin(), place, *place) != place) continue;
        if (std::string file = Find(*place); !file.empty()) return file;
    }
    return "";
}

/// The name under which the picture is stored: its own, or else a substitute that no other picture has. A
/// name that the file would give back as a number is not used.
std::string Planner::StoredName(const std::string& name, const std::string& source) const {
    if (CanBeNamed(name) && ReadBack(name) == name) return name;
    for (int number = 1;; ++number) {
        std::string candidate = Substitute(name, number);
        if (ReadBack(candidate) != candidate) candidate.insert(0, "_");
        const std::string target = folder_ + candidate;
        const Made* made = MadeBefore(target);
        const bool free = made ? SameFile(made->source, source)
                               : NothingStandsAt(target) || SameBytes(ToText(OnDisk(target)), source);
        if (free) return candidate;
    }
}

/// Plans everything but whether the picture is copied.
Planner::Known Planner::Resolve(const std::string& given) const {
    const auto picture = std::make_shared<PictureReference>();
    Known known{.picture = picture, .madeBefore = made_.size()};
    picture->given = given;
    picture->isBlank = TrimBlanks(given).empty();
    if (!picture->isBlank) picture->source = FindSource(given);
    if (picture->source.empty()) return known;
    picture->stored = StoredName(GetFileName(given), picture->source);
    picture->isRefused = EqualText(picture->stored, SettingsFileName);
    if (picture->isRefused) return known;
    picture->target = Place(folder_ + picture->stored);
    known.isInPlace = IsOneFile(picture->source, picture->target);
    return known;
}

PictureStep Planner::Plan(const std::string& given) {
    Known& known = known_[given];
    // A file that was not there may have been made by a step since.
    if (!known.picture || (known.picture->source.empty() && known.madeBefore != made_.size()))
        known = Resolve(given);
    const PictureReference& picture = *known.picture;
    PictureStep step{known.picture};
    if (picture.target.empty()) return step;
    const std::string path = folder_ + picture.stored;
    step.isCopied = !known.isInPlace && !(keepExisting_ && !Find(path).empty());
    step.isMade = !step.isCopied && MadeBefore(path);
    if (step.isCopied) {
        step.isAgain = std::exchange(known.isCopied, true) && winners_.at(picture.target) == picture.source;
        made_.insert_or_assign(picture.stored, Made{picture.target, picture.source});
        winners_.insert_or_assign(picture.target, picture.source);
    } else {
        winners_.try_emplace(picture.target, picture.target);
    }
    return step;
}

std::string Planner::Loss(const PictureReference& picture) const {
    if (!picture.isBlank && picture.stored.empty()) return picture.given + " is not there";
    const auto winner = winners_.find(picture.target);
    if (picture.target.empty() || winner == winners_.end()) return "";
    // A bare name means the file in the folder that the skin was read from.
    const std::string old = ContainsSeparator(picture.given) ? "" : FindFile(InOldFolder(picture.given));
    const std::string& meant = old.empty() ? picture.source : old;
    if (!FileExists(meant) || SameFile(meant, winner->second)) return "";
    return meant + " gives way to " + winner->second;
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
std::string ReasonAgainst(const PictureReference& picture) {
    try {
        CopyFileWhole(NativePath(picture.source), NativePath(picture.target));
        return "";
    } catch (const Failure& failure) {
        return failure.description();
    }
}

std::vector<PictureStep> Steps(Planner& planner, const dbSkin& skin) {
    std::vector<PictureStep> steps;
    VisitPictures(skin, [&](const std::string& given, const auto&, const auto&) {
        steps.push_back(planner.Plan(given));
    });
    return steps;
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

std::vector<PictureStep> PlanSave(const dbSkin& skin, bool keepExisting) {
    const LookupScope names;
    Planner planner(skin, keepExisting);
    return Steps(planner, skin);
}

std::vector<std::string> LossesOfSave(const dbSkin& skin, bool keepExisting) {
    const LookupScope names;
    Planner planner(skin, keepExisting);
    const std::vector<PictureStep> steps = Steps(planner, skin);
    LossList losses;
    std::unordered_map<const PictureReference*, std::string> known;
    auto step = steps.begin();
    VisitPictures(skin, [&](const std::string&, const auto& holder, const auto&) {
        const PictureReference& picture = *(step++)->picture;
        const auto [loss, isNew] = known.try_emplace(&picture);
        if (isNew) loss->second = planner.Loss(picture);
        if (!loss->second.empty()) losses.Add(loss->second, holder());
    });
    return losses.Lines();
}

std::string CarryOut(const PictureStep& step, std::vector<std::string>& failures) {
    const PictureReference& picture = *step.picture;
    std::string reason;
    if (picture.isRefused)
        reason = "\"" + picture.given + "\" is called like the skin's settings and can't be copied";
    if (step.isCopied) reason = ReasonAgainst(picture);
    const bool isThere = !step.isMade || FileExists(picture.target);
    if (reason.empty()) return isThere ? picture.stored : picture.given;
    if (!Contains(failures, reason)) failures.push_back(reason);
    // A bare name that was found in the skin's former folder would not be found any more.
    const bool leads = ContainsSeparator(picture.given) && ToText(OnDisk(picture.given)) == picture.source;
    return leads || picture.isRefused ? picture.given : picture.source;
}

}  // namespace ornavo
