// SPDX-License-Identifier: MIT
// The code tables of the skin file and their names.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace ornavo {

// Fields hold the plain 32-bit number, since a file may hold any; these are the ones with a meaning.
enum ElementTypeCode : std::int32_t {
    TypeMain,
    TypeButton,
    TypePicture,
    TypeVolume,
    TypeInfo,
    TypeSearchBox,
    TypeScrollbar
};
enum AlignCode : std::int32_t { AlignStart, AlignMiddle, AlignEnd, AlignStretch };  // of HAlign and VAlign
enum PropertyKindCode : std::int32_t {
    KindBoolean = 0,
    KindColour = 1,
    KindNumber = 2,
    KindValue = 3,
    KindFont = 4,
    KindPicture = 5,
    KindText = 6,
    KindHeading = 11,
    KindHorizontal = 14
};

inline constexpr std::array<std::string_view, 7> ElementTypeNames = {
    "Main", "Button", "Picture", "Volume", "Info", "Search Box", "Scrollbar"};

}  // namespace ornavo
