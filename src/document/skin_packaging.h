// SPDX-License-Identifier: MIT
// Gathers the pictures of a skin into its folder while it is saved. The model's changes are kept on
// probation: they are taken back unless the save comes to its end.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "document/dbskin.h"

namespace ornavo {

/// Sets fields, and puts all of them back as they were unless they are kept.
class Probation {
public:
    Probation() = default;
    ~Probation() {
        for (auto undo = undo_.rbegin(); undo != undo_.rend(); ++undo) (*undo)();
    }
    Probation(const Probation&) = delete;
    Probation& operator=(const Probation&) = delete;

    template <class T>
    void Set(T& field, T now) {
        if (field == now) return;
        undo_.push_back([&field, before = field]() mutable { field = std::move(before); });
        field = std::move(now);
    }
    void Keep() { undo_.clear(); }

private:
    std::vector<std::function<void()>> undo_;
};

/// The skin's name, or one that the file can hold and that no other skin beside it has.
std::string StorableSkinName(const dbSkin& skin);

/// Copies one picture into the skin's folder, whole or not at all, and returns the name under which it is
/// stored. "" for a picture that is nowhere; a path that leads to it where no copy can be made. keepExisting
/// leaves what has the name in the skin's folder.
std::string SaveSkinPicture(const dbSkin& skin, std::string_view path, bool keepExisting);

/// The items whose Order is between 1 and their count, lowest first; the others have no place in the file.
template <class Collection>
auto InOrder(const Collection& items) {
    using Ref = typename Collection::Ref;
    std::vector<std::vector<Ref>> places(static_cast<std::size_t>(items.Count()));
    for (const Ref& item : items)
        if (item->Order >= 1 && item->Order <= items.Count())
            places[static_cast<std::size_t>(item->Order - 1)].push_back(item);
    std::vector<Ref> ordered;
    for (auto& place : places) ordered.insert(ordered.end(), place.begin(), place.end());
    return ordered;
}

}  // namespace ornavo
