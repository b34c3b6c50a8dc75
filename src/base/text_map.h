// SPDX-License-Identifier: MIT
// Maps by text without regard to case.
#pragma once

#include <string_view>
#include <unordered_map>

#include "base/text.h"

namespace ornavo {

// Both take a string_view as it is, so that a look-up does not allocate.
struct SameText {
    using is_transparent = void;
    bool operator()(std::string_view one, std::string_view two) const { return EqualText(one, two); }
};
struct HashOfText {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return HashText(text); }
};

/// Key is std::string or std::string_view.
template <class Key, class T>
using TextMap = std::unordered_map<Key, T, HashOfText, SameText>;

}  // namespace ornavo
