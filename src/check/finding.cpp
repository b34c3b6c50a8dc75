// SPDX-License-Identifier: MIT
#include "check/finding.h"

#include <algorithm>
#include <utility>

#include "base/find_row.h"

namespace ornavo {
namespace {

using enum Severity;

// clang-format off
constexpr FindingKind Kinds[] = {
    // The lines of the file.
    {"damaged-file", Error, "Mend the file with a text editor, or open it and save it: the damaged file is kept in \"Recovered\"."},
    {"lost-object", Error, "Give it a place: its tags must stand in the list that they belong to, and its key must be its own."},
    {"not-written", Error, "Number the orders from 1 without a gap, or move the element up and down once in the editor."},
    {"other-name", Warning, "Give the folder the skin's name, or the skin the folder's."},
    {"unknown-line", Warning, "Correct the tag's name, or remove the line."},
    {"stray-text", Warning, "Remove the text, or put it into a comment."},
    {"refused-value", Warning, "Write a value that the field can hold."},
    {"overwritten-line", Warning, "Remove the line that doesn't count."},
    {"changed-value", Warning, "Write the value in the form that the next save gives it."},
    {"new-preferences", Hint, "Open and save the skin once."},
    // Pictures.
    {"missing-picture", Error, "Put the picture into the skin's folder, or choose another."},
    {"unreadable-picture", Error, "Save the picture anew with a picture program, as PNG, JPEG, BMP or GIF."},
    {"refused-picture", Error, "Give the picture another name."},
    {"outside-picture", Warning, "Save the skin."},
    {"two-pictures-one-name", Warning, "Give one of the pictures another name."},
    {"mixed-animation", Warning, "Use animated pictures for all states, or for none."},
    {"clear-pixels", Warning, "Switch Use Transparency on, or use a picture without clear pixels."},
    {"heavy-skin", Warning, "Use smaller pictures."},
    {"picture-case", Hint, "Name it as the file is called."},
    {"large-picture", Hint, "Make the picture smaller: it takes memory and time."},
    {"unused-key-colour", Hint, "Choose a color of the picture, or switch Use Transparency off."},
    {"unnamed-file", Hint, "Remove the file, or name it somewhere."},
    // Window sizes.
    {"covered-element", Warning, "Lock or stretch both alike, or leave more room. Windows from 600 x 600 to 3840 x 2160 are checked."},
    {"outside-window", Warning, "Lock it to the side that it is near, or stretch it. Windows from 600 x 600 to 3840 x 2160 are checked."},
    {"no-size", Warning, "Make it larger, or lock it to one side only. Windows from 600 x 600 to 3840 x 2160 are checked."},
    {"outside-shape", Warning, "Lock it and the shape's corners near it to the same sides."},
    {"cut-by-shape", Hint, "Lock it and the shape's corners near it to the same sides."},
    // Fingers and eyes.
    {"small-target", Warning, "Make it at least 34 x 34 pixels."},
    {"low-contrast", Warning, "Choose a lighter or darker text color, or a calmer ground."},
    {"close-targets", Hint, "Leave at least 8 pixels between them."},
    {"cut-text", Hint, "Make the element larger or the text smaller."},
    // Use.
    {"few-corners", Warning, "Give the shape three corners, or the four of its rectangle."},
    {"unusual-font", Warning, "Choose a font that every Windows has."},
    {"idle-button", Hint, "Give the button an action, or make it a picture."},
    {"no-close", Hint, "Add a button that closes the jukebox."},
    {"no-move", Hint, "Let an element drag the window."},
    {"no-resize", Hint, "Let an element resize the window."},
    {"no-standard", Hint, "Call one layout \"Standard\"."},
    {"no-preview", Hint, "Put a picture called \"preview\" into the skin's folder, or name one in the preferences."},
};
// clang-format on

}  // namespace

std::string_view NameOf(Severity severity) {
    constexpr std::string_view Names[] = {"error", "warning", "hint"};
    return Names[static_cast<int>(severity)];
}

std::span<const FindingKind> FindingKinds() {
    return Kinds;
}

Finding MakeFinding(std::string_view code, FindingPlace place, int line, std::string text) {
    return {std::ranges::find(Kinds, code, &FindingKind::code), std::move(place), line, std::move(text)};
}

std::string Quoted(std::string_view text) {
    return std::string("\"").append(text).append("\"");
}

void SortBySeverity(Findings& findings) {
    std::ranges::stable_sort(findings, {}, [](const Finding& finding) { return finding.kind->severity; });
}

}  // namespace ornavo
