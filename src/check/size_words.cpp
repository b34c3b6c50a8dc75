// SPDX-License-Identifier: MIT
#include "check/size_words.h"

namespace ornavo {
namespace {

constexpr const char* All = "in windows of all sizes";

std::string WordsOf(const Interval& range, Interval all) {
    const std::string first = std::to_string(range.first), last = std::to_string(range.last);
    if (range.first == all.first) return "below " + std::to_string(range.last + 1);
    if (range.last == all.last) return "above " + std::to_string(range.first - 1);
    return range.first == range.last ? "at " + first : "between " + first + " and " + last;
}

}  // namespace

std::string Joined(const std::string& one, const char* between, const std::string& other) {
    return one.empty() || other.empty() ? one + other : one + between + other;
}

std::string WordsOf(const Ranges& ranges, Axis axis) {
    const Interval all = CheckedSizes(axis);
    if (ranges.empty() || ranges == Ranges{all}) return "";
    std::string words;
    for (const Interval& range : ranges) words = Joined(words, " or ", WordsOf(range, all));
    return words + (axis == Axis::X ? " wide" : " high");
}

std::string WordsOfBoth(const Ranges& widths, const Ranges& heights) {
    const std::string words = Joined(WordsOf(widths, Axis::X), " and ", WordsOf(heights, Axis::Y));
    return words.empty() ? All : words;
}

std::string WordsOfEither(const Ranges& widths, const Ranges& heights) {
    if (widths == Ranges{CheckedWidths} || heights == Ranges{CheckedHeights}) return All;
    return Joined(WordsOf(widths, Axis::X), " or ", WordsOf(heights, Axis::Y));
}

}  // namespace ornavo
