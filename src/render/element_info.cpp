// SPDX-License-Identifier: MIT
#include "render/element_info.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>
#include <string_view>

#include "base/failure.h"
#include "document/codes.h"
#include "platform/clock.h"
#include "render/prefs.h"
#include "render/skin_picture.h"

namespace ornavo {
namespace {

constexpr double NewFontSize = 10;
constexpr int FarAway = 1 << 24;  // pixels to the left or above; nothing so far out is visible

constexpr std::array<std::string_view, 19> SampleTexts = {
    "",
    "Artist - Song Title",
    "Song Title",
    "Artist Name",
    "Album Name",
    "",
    "Album Picture",
    "Artist Picture",
    "00:10",
    "01:00",
    "03:45",
    "Song Info",
    "Repeat Status",
    "Shuffle Status",
    "Status",
    "Credits",
    "Search Total",
    "",
    "Playlist Name",
};

std::int32_t Absolute(std::int32_t value) {
    if (value == std::numeric_limits<std::int32_t>::min()) throw Failure(Failure::Overflow, "Composition");
    return std::abs(value);
}

}  // namespace

std::string InfoSampleText(const dbLayoutElement& element) {
    if (element.InfoType == InfoUserLabel) return element.InfoField;
    if (element.InfoType == InfoSystemTime) return TimeOfDay();
    if (element.InfoType < 0 || element.InfoType >= static_cast<int>(SampleTexts.size())) return "";
    return std::string(SampleTexts[static_cast<std::size_t>(element.InfoType)]);
}

void DrawInfoText(PictureBox& box, std::string_view text, const Point& at) {
    if (text.empty()) return;
    const Rect bounds = box.Bounds();
    const int left = std::clamp(at.x, -FarAway, bounds.width);
    const int top = std::clamp(at.y, -FarAway, bounds.height);
    box.DrawText(text, {left, top, bounds.width - left, bounds.height - top});
}

void SetupInfoElement(PictureBox& box, dbLayoutElement& element, bool preview) {
    box.SetBackColor(element.BackgroundColor);
    Attempt([&] { element.CapScrollSpeed = Absolute(element.CapScrollSpeed); });
    box.SetPicture(LoadSkinPicture(element.PicNormal));
    box.ForeColor = element.TextColor;
    box.Font = *GetElementFont(element, NewFontSize);
    box.Cls();
    // In the preview only a user label has its text from the start; playback/info_show draws the others.
    if (preview && element.InfoType != InfoUserLabel) return;
    DrawInfoText(box, InfoSampleText(element), {0, element.CaptionY});
}

}  // namespace ornavo
