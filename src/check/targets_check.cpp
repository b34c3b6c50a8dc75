// SPDX-License-Identifier: MIT
#include "check/targets_check.h"

#include <algorithm>
#include <array>

#include "base/failure.h"
#include "check/element_name.h"
#include "check/size_ranges.h"
#include "document/codes.h"
#include "render/placement.h"

namespace ornavo {
namespace {

constexpr int LeastTarget = 34;         // pixels: 9 mm at 96 dpi
constexpr std::int64_t LeastSpace = 8;  // pixels: 2 mm

/// An element that can be pressed.
struct Target {
    const dbLayoutElement* element;
    std::array<Rect, 2> places;  // at the skin's own size, and in the least window
};

bool CanBePressed(const dbLayoutElement& element) {
    switch (element.ElementType) {
        case TypeButton:
        case TypePicture:
            return element.ActionType != 0 || element.Dragger || element.Resizer;
        case TypeVolume:
            return element.VolumeChangeable;
        case TypeInfo:
            return element.Seeker || (element.InfoType == InfoVolume && element.VolumeChangeable);
        default:
            return element.ElementType == TypeScrollbar;
    }
}

std::vector<Target> TargetsOf(const dbLayout& layout, const Size& skin) {
    std::vector<Target> targets;
    for (const dbLayoutElementRef& element : *layout.dbLayoutElements) {
        if (!element->Visible || !CanBePressed(*element)) continue;
        const auto place = [&](const Size& window) {
            return GetElementRect(*element, {window.width, window.height, skin.width, skin.height});
        };
        Attempt([&] { targets.push_back({element.get(), {place(skin), place(LeastWindow)}}); });
    }
    return targets;
}

/// From the end of one stretch to the start of the other; negative where they lie side by side.
std::int64_t SpaceBetween(std::int64_t start, int length, std::int64_t otherStart, int otherLength) {
    return std::max(otherStart - (start + length), start - (otherStart + otherLength));
}

/// The same in both directions, at the skin's own size.
struct Spaces {
    std::int64_t across, down;
};
Spaces SpacesBetween(const Target& one, const Target& other) {
    const Rect &a = one.places[0], &b = other.places[0];
    return {SpaceBetween(a.left, a.width, b.left, b.width), SpaceBetween(a.top, a.height, b.top, b.height)};
}

/// The pixels between neighbours in a row or a column, at most LeastSpace, which is also for others. Nothing
/// happens when the window's handle is pressed by mistake.
std::int64_t SpaceBetween(const Target& one, const Target& other) {
    const auto [across, down] = SpacesBetween(one, other);
    const bool areNeighbours = (across < 0) != (down < 0) && !one.element->Dragger && !other.element->Dragger;
    return areNeighbours ? std::min(std::max(across, down), LeastSpace) : LeastSpace;
}

int ShorterSide(const Rect& place) {
    return std::min(place.width, place.height);
}

/// Whether it is a piece of the window's handle that a large enough one touches.
bool IsPieceOfHandle(const Target& piece, const std::vector<Target>& targets) {
    return piece.element->Dragger && std::ranges::any_of(targets, [&](const Target& other) {
               const auto [across, down] = SpacesBetween(piece, other);
               return other.element->Dragger && ShorterSide(other.places[0]) >= LeastTarget && across <= 0 &&
                      down <= 0;
           });
}

/// Targets each of which is too close to another one, and the least space between two of them.
struct CloseRow {
    std::vector<const Target*> members;
    std::int64_t space;
};

std::vector<CloseRow> RowsOf(const std::vector<Target>& targets) {
    std::vector<CloseRow> rows;
    for (const Target& target : targets) {
        CloseRow joined = {{}, LeastSpace};
        std::erase_if(rows, [&](const CloseRow& row) {
            std::int64_t space = LeastSpace;
            for (const Target* member : row.members) space = std::min(space, SpaceBetween(*member, target));
            if (space == LeastSpace) return false;
            joined.members.insert(joined.members.end(), row.members.begin(), row.members.end());
            joined.space = std::min({joined.space, row.space, space});
            return true;
        });
        joined.members.push_back(&target);
        rows.push_back(std::move(joined));
    }
    return rows;
}

std::string NameOf(const Target& target) {
    return QuotedName(*target.element);
}

class TargetsCheck {
public:
    explicit TargetsCheck(const LoadedSkin& loaded) : loaded_(loaded) {}
    Findings Run() {
        const dbSkin& skin = loaded_.skin();
        for (const dbLayoutRef& layout : *skin.dbLayouts) {
            const auto targets = TargetsOf(*layout, {skin.SkinWidth, skin.SkinHeight});
            for (const Target& target : targets)
                if (!IsPieceOfHandle(target, targets)) CheckSize(*layout, target);
            CheckSpaces(*layout, targets);
        }
        return std::move(findings_);
    }

private:
    void Add(std::string_view code, const dbLayout& layout, const Target& target, const char* field,
             std::string text) {
        const int line = loaded_.LineOf(target.element, *field ? field : "Key");
        findings_.push_back(
            MakeFinding(code, {layout.Key, target.element->Key, field}, line, std::move(text)));
    }
    void CheckSize(const dbLayout& layout, const Target& target);
    void CheckSpaces(const dbLayout& layout, const std::vector<Target>& targets);

    const LoadedSkin& loaded_;
    Findings findings_;
};

void TargetsCheck::CheckSize(const dbLayout& layout, const Target& target) {
    const auto& [own, least] = target.places;
    const bool isWorse = ShorterSide(least) < ShorterSide(own);
    const Rect& worst = isWorse ? least : own;
    if (ShorterSide(worst) < 1 || ShorterSide(worst) >= LeastTarget) return;
    Add("small-target", layout, target, worst.width < worst.height ? "WidthX" : "HeightY",
        NameOf(target) + " is " + std::to_string(worst.width) + " x " + std::to_string(worst.height) +
            " pixels" + (isWorse ? " in a window of 600 x 600" : "") +
            ": fingers miss what is smaller than 34 x 34 (9 mm).");
}

void TargetsCheck::CheckSpaces(const dbLayout& layout, const std::vector<Target>& targets) {
    for (const auto& [members, space] : RowsOf(targets)) {
        const std::size_t count = members.size();
        if (count == 1) continue;
        Add("close-targets", layout, *members[0], "",
            NameOf(*members[0]) + " and " +
                (count == 2 ? NameOf(*members[1]) : std::to_string(count - 1) + " more in a row") + " are " +
                std::to_string(space) +
                " pixels apart: with fewer than 8 (2 mm) fingers press the wrong one.");
    }
}

}  // namespace

Findings CheckTargets(const LoadedSkin& loaded) {
    return TargetsCheck(loaded).Run();
}

}  // namespace ornavo
