// SPDX-License-Identifier: MIT
// Something about a skin that its designer should know.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ornavo {

enum class Severity { Error, Warning, Hint };
std::string_view NameOf(Severity severity);  // "error"

/// A kind of finding. Its code stays the same for good, because ignore files and scripts have it.
struct FindingKind {
    std::string_view code;
    Severity severity;
    std::string_view help;  // what helps, a sentence
};
std::span<const FindingKind> FindingKinds();

/// Where a finding is; each part may be "".
struct FindingPlace {
    std::string layout;  // its key
    std::string item;    // the key of an element or a preference
    std::string field;
    bool operator==(const FindingPlace&) const = default;
};

struct Finding {
    const FindingKind* kind;
    FindingPlace place;
    int line = 0;      // of the settings file, from 1; 0 if it is about no line
    std::string text;  // what the jukebox or the next save will do, a sentence
};
using Findings = std::vector<Finding>;

/// `code` is one of FindingKinds.
Finding MakeFinding(std::string_view code, FindingPlace place, int line, std::string text);

/// The text between quotation marks, for sentences.
std::string Quoted(std::string_view text);

/// The errors first, then the warnings; in each, the order is kept.
void SortBySeverity(Findings& findings);

}  // namespace ornavo
